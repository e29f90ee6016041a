#pragma once

#include <QDBusArgument>

namespace vantorel {

/// A colour as portals carry it: sRGB, each channel 0..1.
struct PortalColor {
    double red = 0;
    double green = 0;
    double blue = 0;
};

inline QDBusArgument& operator<<(QDBusArgument& argument, const PortalColor& color)
{
    argument.beginStructure();
    argument << color.red << color.green << color.blue;
    argument.endStructure();
    return argument;
}

inline const QDBusArgument& operator>>(const QDBusArgument& argument, PortalColor& color)
{
    argument.beginStructure();
    argument >> color.red >> color.green >> color.blue;
    argument.endStructure();
    return argument;
}

}  // namespace vantorel

Q_DECLARE_METATYPE(vantorel::PortalColor)
