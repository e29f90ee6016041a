#include "picker/PickerLayout.h"

#include <algorithm>

namespace vantorel {
namespace {

constexpr double leftOutOfSight = -500;
constexpr double rightOutOfSight = 500;

void centerX(HostRect& rect, double x)
{
    rect.x = x - rect.width / 2;
}

void centerY(HostRect& rect, double y)
{
    rect.y = y - rect.height / 2;
}

void layOutComponents(MainFaceFrames& frames, const MainFaceInput& input)
{
    const HostRect& r = input.reference;
    if (input.showsCodeSnippet) {
        frames.red.x = frames.green.x = frames.blue.x = leftOutOfSight;
        frames.snippet.x = r.x;
        frames.snippet.width = r.width;
        frames.snippet.y = r.y - frames.snippet.height - 2;
        frames.componentsParked = true;
        frames.snippetParked = false;
        return;
    }
    // Centred below the two digit columns of each component.
    centerX(frames.red, r.x + r.width * 2.5 / 15);
    frames.green.x = r.x + r.width / 2 - frames.blue.width / 2;
    frames.blue.x = r.x + r.width - r.width * 2.5 / 15 - frames.blue.width / 2;
    frames.snippet.x = leftOutOfSight;
    frames.componentsParked = false;
    frames.snippetParked = true;
}

void layOutColorName(MainFaceFrames& frames, const MainFaceInput& input)
{
    constexpr double margin = 15;
    constexpr double widest = 300;
    constexpr double narrowest = 50;
    HostRect& name = frames.colorName;
    const double room = input.pageWidth - margin - name.x;
    frames.colorNameParked = !(room > narrowest);
    if (room > widest) {
        name.width = widest;
        name.y = input.colorsListPopUp.y;
    } else if (room > narrowest) {
        name.width = room;
        name.y = input.colorsListPopUp.y;
    } else {
        name.y = input.panelHeight + 500;
    }
}

void layOutRgbDecimal(MainFaceFrames& frames, const MainFaceInput& input)
{
    HostRect& rgb = frames.rgbDecimal;
    frames.rgbDecimalParked = input.pageWidth < 200;
    if (frames.rgbDecimalParked) {
        rgb.x = -200;
        return;
    }
    rgb.x = input.fullHex.maxX() + 16;
    rgb.width = input.pageWidth - rgb.x - 20;
}

}  // namespace

MainFaceFrames mainFaceLayout(const MainFaceInput& input)
{
    MainFaceFrames frames = input.current;
    layOutComponents(frames, input);
    layOutColorName(frames, input);
    layOutRgbDecimal(frames, input);
    return frames;
}

SettingsFaceFrames settingsFaceLayout(const SettingsFaceFrames& current, HostRect bounds)
{
    SettingsFaceFrames f = current;
    const double left = bounds.x;

    f.doneButton.x = bounds.midX() - f.doneButton.width / 2;
    f.doneButton.y = bounds.y + 10;
    f.poundSign.x = left + 20;
    f.poundSign.y = bounds.maxY() - 12 - f.poundSign.height;
    f.entryForm.x = left + 20 + f.poundSign.width + 12;
    centerY(f.entryForm, f.poundSign.midY());

    f.componentDisplay.x = left + 49;
    f.componentDisplay.y = f.poundSign.y - f.componentDisplay.height - 4;
    f.componentDisplayLabel.x = left + 10;
    f.componentDisplayLabel.y = f.componentDisplay.y;

    f.codeSnippet.x = left + 49;
    f.codeSnippet.y = f.componentDisplay.y - f.codeSnippet.height / 2 - 15;
    f.codeSnippetLabel.x = left + 14;
    centerY(f.codeSnippetLabel, f.codeSnippet.midY());

    f.dragTypeLabel.x = left + 14;
    f.dragTypeLabel.y = f.codeSnippet.y - f.dragTypeLabel.height / 2 - 15;
    f.dragType.x = left + 14 + f.dragTypeLabel.width + 2;
    centerY(f.dragType, f.dragTypeLabel.midY());

    const double ground = f.doneButton.maxY() + 3;
    const double dragTypeRow = f.dragType.y;
    const double codeSnippetRow = f.codeSnippet.y;
    const bool allFit = ground <= dragTypeRow;
    f.dragTypeParked = !allFit;
    f.codeSnippetParked = !allFit && ground > codeSnippetRow;
    f.moreIndicatorParked = allFit;
    if (f.dragTypeParked) f.dragType.x = f.dragTypeLabel.x = rightOutOfSight;
    if (f.codeSnippetParked) {
        // The component display is hidden together with the snippet's row, even if it would fit by
        // itself.
        f.codeSnippet.x = f.codeSnippetLabel.x = rightOutOfSight;
        f.componentDisplay.x = f.componentDisplayLabel.x = rightOutOfSight;
    }

    if (allFit) {
        f.moreIndicator.x = leftOutOfSight;
    } else {
        f.moreIndicator.x = 30;
        centerY(f.moreIndicator, f.doneButton.midY());
    }
    f.help.x = left + 6;
    centerY(f.help, f.doneButton.midY());
    f.versionLabel.x = bounds.maxX() - f.versionLabel.width - 8;
    f.versionLabel.y = bounds.y + 8;
    return f;
}

HostSize growthTo(HostSize wanted, HostSize page)
{
    return {std::max(0.0, wanted.width - page.width), std::max(0.0, wanted.height - page.height)};
}

}  // namespace vantorel
