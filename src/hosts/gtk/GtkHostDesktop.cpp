#include "hosts/gtk/GtkHostDesktop.h"

#include "hosts/gtk/CairoCanvas.h"
#include "hosts/gtk/GtkTranslations.h"
#include "result/Message.h"
#include "text/Unicode.h"

#include <algorithm>
#include <cmath>

namespace vantorel {
namespace {

class GtkOneShotTimer final : public HostTimer {
public:
    GtkOneShotTimer(double seconds, std::function<void()> reaction)
    {
        _deferral.callAfter(static_cast<unsigned>(std::max(0L, std::lround(seconds * 1000))),
                            std::move(reaction));
    }

private:
    GtkDeferral _deferral;
};

}  // namespace

GtkHostDesktop::GtkHostDesktop(std::function<void(const std::u16string&)> log)
    : _log(std::move(log)),
      _colorLists(_files, [this](const std::u16string& line) { this->log(line); })
{
    _disk.setFailureHandler(
        [this](auto, const Message& message) { this->log(utf16FromUtf8(english(message))); });
}

std::unique_ptr<HostTimer> GtkHostDesktop::scheduleTimer(double seconds,
                                                         std::function<void()> reaction)
{
    return std::make_unique<GtkOneShotTimer>(seconds, std::move(reaction));
}

HostSize GtkHostDesktop::sizeOfText(const HostText& text)
{
    return sizeOfDrawnText(text);
}

std::u16string GtkHostDesktop::localizedString(const std::u16string& key)
{
    return translatedText(key);
}

void GtkHostDesktop::openURL(const std::string& url)
{
    if (g_app_info_launch_default_for_uri(url.c_str(), nullptr, nullptr)) return;
    beep();
    log(u"No program opens " + utf16FromUtf8(url));
}

void GtkHostDesktop::beep()
{
    gdk_beep();
}

void GtkHostDesktop::log(const std::u16string& line)
{
    if (_log) _log(line);
}

}  // namespace vantorel
