#include "scales/ScalesSections.h"

#include <array>

namespace vantorel {
namespace {

// In points.
constexpr double seenHeight = 20;
constexpr double mostSeenHeight = 32;
/// These rows are compared as a whole, so that each stays in one line.
constexpr double leastSeenWidth = 10;

constexpr std::array allVisions{ColorVision::deuteranopia, ColorVision::protanopia,
                                ColorVision::tritanopia, ColorVision::grey};

std::u16string nameOfVision(HostDesktop& desktop, ColorVision vision)
{
    switch (vision) {
        case ColorVision::deuteranopia:
            return desktop.localizedString(u"Deuteranopia");
        case ColorVision::protanopia:
            return desktop.localizedString(u"Protanopia");
        case ColorVision::tritanopia:
            return desktop.localizedString(u"Tritanopia");
        case ColorVision::grey:
            break;
    }
    return desktop.localizedString(u"Grey");
}

class VisionSection final : public ScalesSection {
public:
    explicit VisionSection(ScalesPage& scalesPage)
        : ScalesSection(scalesPage, "scalesVision",
                        scalesPage.panel().desktop().localizedString(u"Vision"))
    {
        const auto add = [this](const std::u16string& name) {
            return &addRow(name, {.name = name, .isJoined = true, .leastWidth = leastSeenWidth},
                           {seenHeight, mostSeenHeight});
        };
        _usual = add(desktop().localizedString(u"Usual"));
        for (std::size_t i = 0; i < allVisions.size(); ++i)
            _seen[i] = add(nameOfVision(desktop(), allVisions[i]));
    }

    void show() override
    {
        _usual->show(page().model().scale());
        for (std::size_t i = 0; i < allVisions.size(); ++i)
            _seen[i]->show(page().model().seenScale(allVisions[i]));
    }

private:
    SwatchStrip* _usual = nullptr;
    std::array<SwatchStrip*, allVisions.size()> _seen{};
};

}  // namespace

std::unique_ptr<ScalesSection> makeVisionSection(ScalesPage& page)
{
    return std::make_unique<VisionSection>(page);
}

}  // namespace vantorel
