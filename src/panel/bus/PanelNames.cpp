#include "panel/bus/PanelNames.h"

#include <array>
#include <utility>

namespace vantorel {
namespace {

using Kind = PanelError::Kind;

constexpr std::array errorNames{
    std::pair{Kind::notAColor, "NotAColor"},
    std::pair{Kind::noSuchForm, "NoSuchForm"},
    std::pair{Kind::cancelled, "Cancelled"},
    std::pair{Kind::notPossible, "NotPossible"},
};

QString errorName(const char* last)
{
    return panelInterface + QStringLiteral(".Error.") + QLatin1String(last);
}

}  // namespace

QString errorNameFor(PanelError::Kind kind)
{
    for (const auto& [row, last] : errorNames) {
        if (row == kind) return errorName(last);
    }
    return {};
}

std::optional<PanelError::Kind> errorKindFor(const QString& name)
{
    for (const auto& [row, last] : errorNames) {
        if (errorName(last) == name) return row;
    }
    return std::nullopt;
}

}  // namespace vantorel
