#include "panel/pages/PanelPages.h"

#include "csscolor/GamutMapping.h"
#include "hosts/qt/TextScale.h"

#include <algorithm>
#include <utility>

namespace vantorel {

PanelPages::PanelPages(QWidget& window)
{
    auto* place = new QWidget(&window);
    _holder = std::make_unique<QtMirrored<HostView>>(HostRect{}, place);
    place->setVisible(true);
}

PanelPages::~PanelPages()
{
    clear();
}

void PanelPages::clear()
{
    _currentIndex = -1;
    _pages.clear();
}

void PanelPages::add(std::unique_ptr<PanelPage> page)
{
    _pages.push_back(std::move(page));
}

const PanelPage& PanelPages::page(int index) const
{
    return *_pages[static_cast<std::size_t>(index)];
}

PanelPage* PanelPages::current() const
{
    return _currentIndex >= 0 ? _pages[static_cast<std::size_t>(_currentIndex)].get() : nullptr;
}

HostColorPicker* PanelPages::currentPicker() const
{
    const PanelPage* page = current();
    return page != nullptr ? page->picker() : nullptr;
}

QStringList PanelPages::keys() const
{
    QStringList keys;
    for (const auto& page : _pages)
        keys.append(page->key());
    return keys;
}

bool PanelPages::showPageWithKey(const QString& key)
{
    const auto index = static_cast<int>(keys().indexOf(key));
    showPage(index);
    return index >= 0;
}

void PanelPages::showRemembered(const QString& identifierOrName)
{
    const auto indexOf = [&](QString (PanelPage::*text)() const) {
        const auto found = std::find_if(_pages.begin(), _pages.end(), [&](const auto& page) {
            return (*page.*text)() == identifierOrName;
        });
        return found != _pages.end() ? static_cast<int>(found - _pages.begin()) : -1;
    };
    const int index = indexOf(&PanelPage::identifier);
    showPage(index >= 0 ? index : indexOf(&PanelPage::name));
}

void PanelPages::showPage(int index)
{
    if (index < 0 || index >= count() || index == _currentIndex) return;
    if (PanelPage* old = current()) {
        if (_isVisible) old->didDisappear();
        old->hide();
    }
    _currentIndex = index;
    current()->show(*_holder);
    if (_isVisible) current()->didAppear();
    passColor();
    emit pageShown(index);
}

void PanelPages::step(int pages)
{
    if (count() > 0) showPage((_currentIndex + pages + count()) % count());
}

void PanelPages::setColor(const HostColor& color)
{
    _color = color;
    passColor();
    emit colorShown();
}

void PanelPages::notePairChange()
{
    HostColorPicker* picker = currentPicker();
    if (picker != nullptr && current()->view() != nullptr) picker->colorPairDidChange();
}

bool PanelPages::takesWideGamut() const
{
    return current() != nullptr && current()->takesWideGamut();
}

void PanelPages::passColor()
{
    if (PanelPage* page = current())
        page->setColor(page->takesWideGamut() ? _color : mappedIntoSRGB(_color));
}

void PanelPages::setVisible(bool isVisible)
{
    if (isVisible == std::exchange(_isVisible, isVisible)) return;
    PanelPage* page = current();
    if (page == nullptr) return;
    isVisible ? page->didAppear() : page->didDisappear();
}

void PanelPages::setGeometry(const QRect& place)
{
    _holder->widget()->setGeometry(place);
    const HostRect frame{0, 0, place.width() / textScale(), place.height() / textScale()};
    if (frame == _holder->frame()) return;
    _holder->setFrame(frame);
    if (PanelPage* page = current()) page->resize(frame.size());
}

}  // namespace vantorel
