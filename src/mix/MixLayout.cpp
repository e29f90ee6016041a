#include "mix/MixLayout.h"

#include "mix/PlaneView.h"

#include <algorithm>

namespace vantorel {
namespace {

// In points.
constexpr double margin = 10;
constexpr double edge = 4;
constexpr double groupGap = 8;
constexpr double partGap = 4;
constexpr double controlHeight = 28;
constexpr double barWidth = 28;
constexpr double letterWidth = 16;
constexpr double besideWord = 8;
constexpr double numberWidth = 72;
constexpr double leastWidthForWords = 330;
/// A slider's track begins this far inside of its frame.
constexpr double beforeTrack = 4;

}  // namespace

MixFrames mixFrames(HostSize page, double widestWord)
{
    const double width = std::max(page.width, leastMixPage.width);
    const double height = std::max(page.height, leastMixPage.height);
    // From the top, whatever room there is below.
    double top = page.height - edge;
    MixFrames frames;
    const auto takeRow = [&](double rowHeight) {
        top -= rowHeight;
        return top;
    };

    frames.choice = {margin, takeRow(controlHeight), width - 2 * margin, controlHeight};

    top -= groupGap;
    const double rows = controlHeight * 4 + partGap * 3;
    const double planeHeight = height - 2 * edge - controlHeight - 2 * groupGap - rows;
    const double planeY = takeRow(planeHeight);
    const HostRect plane{margin, planeY, width - 2 * margin - groupGap - barWidth, planeHeight};
    frames.plane = insetRect(plane, -PlaneView::roomForMark, -PlaneView::roomForMark);
    frames.bar = {width - margin - barWidth, planeY - beforeTrack, barWidth,
                  planeHeight + 2 * beforeTrack};

    top -= groupGap;
    frames.showsWords = page.width >= leastWidthForWords;
    const double labelWidth = frames.showsWords ? widestWord + besideWord : letterWidth;
    for (MixRowFrames& row : frames.rows) {
        const double y = takeRow(controlHeight);
        row.label = {margin, y, labelWidth, controlHeight};
        row.number = {width - margin - numberWidth, y, numberWidth, controlHeight};
        const double trackX = row.label.maxX();
        row.track = {trackX, y, row.number.x - groupGap + beforeTrack - trackX, controlHeight};
        top -= partGap;
    }
    return frames;
}

}  // namespace vantorel
