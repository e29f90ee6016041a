#include "hosts/common/FocusMarks.h"

namespace vantorel {

void strokeOnAnyColor(HostCanvas& canvas, HostBezierPath path)
{
    path.setLineWidth(3.5);
    canvas.stroke(path, HostColor::blackColor());
    path.setLineWidth(1.5);
    canvas.stroke(path, HostColor::whiteColor());
}

}  // namespace vantorel
