#include "HostUnderTest.h"
#include "hosts/common/PopUpChoice.h"
#include "hosts/common/ScrubGesture.h"
#include "hosts/posix/PosixFiles.h"
#include "testing/headless/HeadlessColorPanel.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vantorel {
namespace {

/// The panel without a screen, whose queue gets further events when it runs out of them.
class HeadlessToolkitPanel : public HeadlessColorPanel {
public:
    explicit HeadlessToolkitPanel(HeadlessDesktop& desktop)
        : HeadlessColorPanel(desktop, {0, 0, 300, 200}, HostColor::whiteColor())
    {
    }

    std::function<void()> moreEvents;

protected:
    void eventsRanOut() override
    {
        if (moreEvents) moreEvents();
    }
};

using HeadlessPanelUnderTest = PanelUnderTest<HeadlessToolkitPanel>;

HeadlessDesktop::Options desktopOptions()
{
    HeadlessDesktop::Options options;
    options.files = std::make_unique<PosixFiles>();
    return options;
}

class HeadlessUnderTest final : public HostUnderTest {
public:
    HostDesktop& desktop() override { return _desktop; }
    HostColorPanel& panel() override { return _panel; }
    EmbeddedPage& page() override { return _panel.page(); }
    bool showPage(const LoadedPlugin& plugin) override
    {
        return _panel.showPage(plugin, _root, HostColor::blackColor());
    }

    HostView& root() override { return _root; }
    void showWindow() override {}
    void resizeWindow(HostSize size) override
    {
        _root.setFrame({0, 0, size.width, size.height});
        _panel.page().resize();
    }
    void destroyWindow() override { _isOpen = false; }
    void handleEvents() override
    {
        _desktop.advance(0, [] {});
        for (const auto& [name, control] : _desktop.interfaceFactory().controls()) {
            auto* custom = dynamic_cast<HeadlessCustomView*>(control);
            if (custom != nullptr && custom->needsDisplay() && isShown(*custom))
                static_cast<void>(custom->draw());
        }
    }
    bool runUntil(const std::function<bool()>& hasHappened) override
    {
        constexpr double step = 0.01;
        for (double waited = 0; !hasHappened(); waited += step) {
            if (waited > 10) return false;
            _desktop.advance(step, [] {});
        }
        return true;
    }

    void clickInto(HostTextField& field) override
    {
        endEditing();
        auto& edited = static_cast<HeadlessTextField&>(field);
        if (edited.takesTyping()) edited.beginEditing();
    }
    void type(HostTextField& field, const std::u16string& text) override
    {
        auto* edited = &static_cast<HeadlessTextField&>(field);
        for (std::size_t i = 0; i < text.size();) {
            if (!isAlive(edited) || !edited->isEdited()) return;
            const bool isPair = text[i] >= 0xD800 && text[i] < 0xDC00;
            const std::u16string key = text.substr(i, isPair ? 2 : 1);
            i += key.size();
            const HostSelection selected = edited->selectedRange();
            std::u16string typed = edited->stringValue();
            typed.replace(selected.location, selected.length, key);
            const std::size_t caret = selected.location + key.size();
            edited->type(typed, caret);
            if (!isAlive(edited)) return;
            // What the page has completed is replaced by the next key.
            if (edited->stringValue() != typed &&
                edited->selectedRange() == HostSelection{caret, 0})
                edited->setSelectedRange({caret, edited->stringValue().size()});
            handleEvents();
        }
    }
    bool pressKey(HostView& control, HandKey key, std::uint64_t modifierFlags) override
    {
        auto& field = dynamic_cast<HeadlessTextField&>(control);
        if (key == HandKey::enter) {
            field.sendAction();
        } else if (field.canStep()) {
            field.sendStep(key == HandKey::up ? 1 : -1, modifierFlags);
        }
        handleEvents();
        return true;
    }
    void clickAcross(HostTextField& field, const std::vector<HostEvent>& events) override
    {
        auto* edited = &static_cast<HeadlessTextField&>(field);
        ScrubGesture gesture(field);
        for (const HostEvent& event : events) {
            if (!isAlive(edited)) return;
            if (event.type == HostEventType::leftMouseDown) {
                static_cast<void>(gesture.press(event.location.x));
            } else if (event.type == HostEventType::leftMouseDragged) {
                gesture.move(event.location.x, event.modifierFlags);
            } else if (gesture.release()) {
                edited->beginEditing();
                edited->setSelectedRange({0, edited->stringValue().size()});
            }
        }
    }
    void click(HostButton& button) override
    {
        if (isShown(button)) static_cast<HeadlessButton&>(button).click();
        handleEvents();
    }
    void open(HostPopUpButton& popUp) override
    {
        popUp.sendWillPopUp();
        if (!popUp.menu().empty()) _opened = Opened{&popUp, popUp.menu()};
    }
    bool choose(const std::vector<std::u16string>& path) override
    {
        if (!hasOpenMenu()) return false;
        const Opened opened = *std::exchange(_opened, std::nullopt);
        const HostMenu* menu = &opened.items;
        std::vector<HostMenu> submenus;
        submenus.reserve(path.size());
        for (std::size_t i = 0; i < path.size(); ++i) {
            const bool isLast = i + 1 == path.size();
            const auto found =
                std::find_if(menu->begin(), menu->end(), [&](const HostMenuItem& item) {
                    return item.title == path[i] && !item.separator && !item.submenu == isLast;
                });
            if (found == menu->end()) return false;
            if (!isLast) {
                menu = &submenus.emplace_back(found->submenu());
            } else if (i == 0) {
                const auto index = static_cast<int>(found - opened.items.begin());
                chooseOpenedItem(*opened.popUp, *found, index);
            } else if (found->action) {
                found->action(*found);
            }
        }
        return true;
    }
    bool hasOpenMenu() override
    {
        return _opened && isAlive(_opened->popUp) && isShown(*_opened->popUp);
    }

    void turnMouse(HostCustomView& view, std::vector<HandStep> steps) override
    {
        auto& custom = static_cast<HeadlessCustomView&>(view);
        std::deque<HandStep> rest(steps.begin(), steps.end());
        _panel.moreEvents = [&] {
            while (!rest.empty() && isAlive(&custom) && isShown(custom)) {
                const HandStep step = rest.front();
                rest.pop_front();
                if (const auto* event = std::get_if<HostEvent>(&step)) {
                    _panel.post(*event);
                    return;
                }
                std::get<std::function<void()>>(step)();
            }
        };
        _panel.deliver(std::vector<HostEvent>(), custom);
        _panel.moreEvents = {};
        handleEvents();
    }
    void movePointer(HostCustomView& view, std::optional<HostPoint> at) override
    {
        const HostPoint outside{view.bounds().x - 1000, view.bounds().y - 1000};
        _panel.deliver(std::vector{HostEvent{HostEventType::mouseMoved, at.value_or(outside), 0}},
                       static_cast<HeadlessCustomView&>(view));
    }
    void turnWheel(HostCustomView& view, const HostScrollEvent& event) override
    {
        static_cast<HeadlessCustomView&>(view).content().scrollWheel(event);
    }
    void placePointer(HostCustomView&, HostPoint at) override { _panel.setPointer(at); }
    void pressOK() override { endEditing(); }

    std::optional<PixelRect> placeOf(const HostView& view) override
    {
        if (!isShown(view)) return std::nullopt;
        PixelRect place{0, 0, 0, 0};
        for (const HostView* part = &view; part != &_root; part = part->superview()) {
            const PixelRect frame = pixelFrame(part->frame(), part->superview()->bounds(), 1);
            if (part == &view) place = {0, 0, frame.width, frame.height};
            place.x += frame.x;
            place.y += frame.y;
        }
        return place;
    }
    std::u16string textIn(const HostTextField& field) override { return field.stringValue(); }
    std::optional<HostSelection> selectionIn(const HostTextField& field) override
    {
        const auto& edited = static_cast<const HeadlessTextField&>(field);
        return edited.isEdited() ? std::optional(edited.selectedRange()) : std::nullopt;
    }
    bool isOn(const HostButton& button) override { return button.state() == 1; }
    std::optional<std::u16string> tipOf(const HostView& view) override
    {
        const auto& tip = view.toolTip();
        return tip && tip->find_first_not_of(u' ') != tip->npos ? tip : std::nullopt;
    }
    std::array<int, 3> pixelAt(HostPoint inRoot) override
    {
        std::array<int, 3> pixel{255, 255, 255};
        paint(_root, inRoot, pixel);
        return pixel;
    }
    std::string identifierOf(const HostView& view) override
    {
        for (const auto& [name, control] : _desktop.interfaceFactory().controls())
            if (control == &view) return name;
        return {};
    }
    std::optional<std::u16string> spokenNameOf(const HostView&) override { return std::nullopt; }
    std::u16string textOnClipboard() override { return _panel.copiedText().value_or(u""); }
    std::optional<HostPasteboardItem> carried() override
    {
        std::optional<HostPasteboardItem> item;
        for (const JournalEntry& entry : _desktop.journal()) {
            const auto* drag = std::get_if<Dragged>(&entry);
            if (drag == nullptr) continue;
            if (drag->text) item = *drag->text;
            if (drag->color) item = *drag->color;
        }
        return item;
    }

protected:
    void callLater(std::function<void()> function) override { function(); }

private:
    struct Opened {
        HostPopUpButton* popUp;
        HostMenu items;
    };

    [[nodiscard]] bool isAlive(const HostView* view)
    {
        const auto& controls = _desktop.interfaceFactory().controls();
        return std::any_of(controls.begin(), controls.end(),
                           [view](const auto& control) { return control.second == view; });
    }
    [[nodiscard]] bool isShown(const HostView& view) const
    {
        const HostView* part = &view;
        while (part != nullptr && part != &_root && isInSight(*part, 1))
            part = part->superview();
        return part == &_root && _isOpen;
    }
    void endEditing()
    {
        for (const auto& [name, control] : _desktop.interfaceFactory().controls())
            if (auto* field = dynamic_cast<HeadlessTextField*>(control)) field->endEditing();
    }
    /// Paints a place of a view, and what lies on it.
    void paint(HostView& view, HostPoint at, std::array<int, 3>& pixel)
    {
        if (auto* custom = dynamic_cast<HeadlessCustomView*>(&view)) {
            const RecordingCanvas canvas = custom->draw();
            for (const PaintOperation& operation : canvas.operations()) {
                if (const auto* picture = std::get_if<PixelsOperation>(&operation))
                    paintPicture(*picture, at, pixel);
                const auto* fill = std::get_if<FillOperation>(&operation);
                const auto rgb = fill != nullptr ? fill->color.calibratedRGB() : std::nullopt;
                if (!rgb || !fill->path.containsPoint(at)) continue;
                pixel = {static_cast<int>(rgb->red * 255), static_cast<int>(rgb->green * 255),
                         static_cast<int>(rgb->blue * 255)};
            }
        }
        for (HostView* subview : view.subviews()) {
            if (!isInSight(*subview, 1) || !subview->frame().contains(at)) continue;
            paint(*subview,
                  {at.x - subview->frame().x + subview->bounds().x,
                   at.y - subview->frame().y + subview->bounds().y},
                  pixel);
        }
    }

    static void paintPicture(const PixelsOperation& picture, HostPoint at,
                             std::array<int, 3>& pixel)
    {
        const HostPixels& pixels = picture.pixels;
        const double left = std::round(picture.rect.x);
        const double top = std::round(picture.rect.maxY());
        const HostPixelSize size = RecordingCanvas().pixelSizeOf(picture.rect);
        const double x = std::floor(at.x) + 0.5 - left;
        const double y = top - std::floor(at.y) - 0.5;
        if (x < 0 || x > size.width || y < 0 || y > size.height) return;
        const std::uint32_t shown = pixels.row(static_cast<int>(
            y * pixels.height() / size.height))[static_cast<int>(x * pixels.width() / size.width)];
        const auto byte = [shown](unsigned shift) {
            return static_cast<int>(shown >> shift & 255U);
        };
        for (std::size_t i = 0; i < pixel.size(); ++i)
            pixel[i] =
                byte(16U - 8U * static_cast<unsigned>(i)) + pixel[i] * (255 - byte(24)) / 255;
    }

    HeadlessDesktop _desktop{desktopOptions()};
    HostView _root{{0, 0, 300, 200}};
    HeadlessPanelUnderTest _panel{_dialog, EmbeddingTraits{}, _desktop};
    std::optional<Opened> _opened;
    bool _isOpen = true;
};

}  // namespace

std::unique_ptr<HostUnderTest> makeHeadlessHost()
{
    return std::make_unique<HeadlessUnderTest>();
}

}  // namespace vantorel
