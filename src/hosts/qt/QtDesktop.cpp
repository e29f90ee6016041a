#include "hosts/qt/QtDesktop.h"

#include "hosts/common/TextLines.h"
#include "hosts/qt/DisplayNames.h"
#include "hosts/qt/EventGuard.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtTranslations.h"
#include "hosts/qt/TextScale.h"
#include "result/Message.h"
#include "text/Unicode.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFontMetricsF>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace vantorel {
namespace {

class OneShotTimer final : public HostTimer {
public:
    OneShotTimer(double seconds, std::function<void()> reaction)
    {
        EventGuard::watch(_timer);
        _timer.setSingleShot(true);
        _timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&_timer, &QTimer::timeout, &_timer, std::move(reaction));
        _timer.start(static_cast<int>(std::lround(seconds * 1000)));
    }

private:
    QTimer _timer;
};

}  // namespace

QtDesktop::QtDesktop(QtLog log)
    : _log(log),
      _paletteFiles(_files, [this](const std::u16string& line) { this->log(line); }),
      _colorLists(_paletteFiles, [this](double seconds, std::function<void()> reaction) {
          return scheduleTimer(seconds, std::move(reaction));
      })
{
    _disk.setFailureHandler(
        [this](auto, const Message& message) { this->log(utf16FromUtf8(english(message))); });
}

std::unique_ptr<HostTimer> QtDesktop::scheduleTimer(double seconds, std::function<void()> reaction)
{
    return std::make_unique<OneShotTimer>(seconds, std::move(reaction));
}

HostSize QtDesktop::sizeOfText(const HostText& text)
{
    const QFontMetricsF metrics(fontOf(text));
    const std::u16string shown = u16From(shownText(text));
    const auto lines = linesOf(shown);
    qreal width = 0;
    for (const std::u16string_view line : lines)
        width = std::max(width, metrics.horizontalAdvance(qStringFrom(line)));
    return {width / textScale(), metrics.height() * static_cast<qreal>(lines.size()) / textScale()};
}

std::u16string QtDesktop::localizedString(const std::u16string& key)
{
    return u16From(translatedText(key));
}

void QtDesktop::openURL(const std::string& url)
{
    if (QDesktopServices::openUrl(QUrl::fromEncoded(QByteArray::fromStdString(url)))) return;
    beep();
    log(u"No program opens " + utf16FromUtf8(url));
}

void QtDesktop::beep()
{
    QApplication::beep();
}

void QtDesktop::log(const std::u16string& line)
{
    if (_log == QtLog::nowhere) return;
    const std::string text = utf8FromUtf16(line) + "\n";
    // If stderr is closed there is no way to report it.
    static_cast<void>(std::fputs(text.c_str(), stderr));
}

}  // namespace vantorel
