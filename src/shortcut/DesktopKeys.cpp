#include "shortcut/DesktopKeys.h"

#include <algorithm>
#include <array>

namespace vantorel {
namespace {

constexpr std::uint16_t shiftBit = 1;
constexpr std::uint16_t controlBit = 4;
constexpr std::uint16_t altBit = 8;
constexpr std::uint16_t metaBit = 64;

struct NamedKey {
    int key;
    std::uint32_t symbol;
    const char* name;
};

constexpr std::array namedKeys{
    NamedKey{Qt::Key_Space, 0x0020, "space"},
    NamedKey{Qt::Key_Backspace, 0xff08, "BackSpace"},
    NamedKey{Qt::Key_Tab, 0xff09, "Tab"},
    NamedKey{Qt::Key_Return, 0xff0d, "Return"},
    NamedKey{Qt::Key_Pause, 0xff13, "Pause"},
    NamedKey{Qt::Key_Escape, 0xff1b, "Escape"},
    NamedKey{Qt::Key_Home, 0xff50, "Home"},
    NamedKey{Qt::Key_Left, 0xff51, "Left"},
    NamedKey{Qt::Key_Up, 0xff52, "Up"},
    NamedKey{Qt::Key_Right, 0xff53, "Right"},
    NamedKey{Qt::Key_Down, 0xff54, "Down"},
    NamedKey{Qt::Key_PageUp, 0xff55, "Page_Up"},
    NamedKey{Qt::Key_PageDown, 0xff56, "Page_Down"},
    NamedKey{Qt::Key_End, 0xff57, "End"},
    NamedKey{Qt::Key_Print, 0xff61, "Print"},
    NamedKey{Qt::Key_Insert, 0xff63, "Insert"},
    NamedKey{Qt::Key_Delete, 0xffff, "Delete"},
    NamedKey{Qt::Key_Plus, 0x002b, "plus"},
    NamedKey{Qt::Key_Comma, 0x002c, "comma"},
    NamedKey{Qt::Key_Minus, 0x002d, "minus"},
    NamedKey{Qt::Key_Period, 0x002e, "period"},
    NamedKey{Qt::Key_Slash, 0x002f, "slash"},
};

constexpr std::uint32_t firstFunctionSymbol = 0xffbe;

bool isFunctionKey(int key)
{
    return key >= Qt::Key_F1 && key <= Qt::Key_F24;
}

}  // namespace

std::optional<DesktopKey> desktopKeyFrom(const QKeySequence& keys)
{
    if (keys.isEmpty()) return std::nullopt;
    const QKeyCombination first = keys[0];
    const int key = first.key();
    DesktopKey found;
    const auto add = [&](Qt::KeyboardModifier modifier, std::uint16_t bit) {
        if (first.keyboardModifiers().testFlag(modifier))
            found.modifiers = static_cast<std::uint16_t>(found.modifiers | bit);
    };
    add(Qt::ShiftModifier, shiftBit);
    add(Qt::ControlModifier, controlBit);
    add(Qt::AltModifier, altBit);
    add(Qt::MetaModifier, metaBit);
    if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9)) {
        found.name = QString(QChar(key)).toLower();
        found.symbol = found.name.front().unicode();
        return found;
    }
    if (isFunctionKey(key)) {
        found.name = QStringLiteral("F%1").arg(key - Qt::Key_F1 + 1);
        found.symbol = firstFunctionSymbol + static_cast<std::uint32_t>(key - Qt::Key_F1);
        return found;
    }
    const auto* const named = std::ranges::find(namedKeys, key, &NamedKey::key);
    if (named == namedKeys.end()) return std::nullopt;
    found.name = QString::fromLatin1(named->name);
    found.symbol = named->symbol;
    return found;
}

QString portalTriggerFrom(const QKeySequence& keys)
{
    const auto key = desktopKeyFrom(keys);
    if (!key) return {};
    QString trigger;
    if ((key->modifiers & controlBit) != 0) trigger += QStringLiteral("CTRL+");
    if ((key->modifiers & altBit) != 0) trigger += QStringLiteral("ALT+");
    if ((key->modifiers & shiftBit) != 0) trigger += QStringLiteral("SHIFT+");
    if ((key->modifiers & metaBit) != 0) trigger += QStringLiteral("LOGO+");
    return trigger + key->name;
}

bool canBeGlobal(const QKeySequence& keys)
{
    if (keys.isEmpty()) return false;
    const int key = keys[0].key();
    if (isFunctionKey(key) || key == Qt::Key_Print || key == Qt::Key_Pause) return true;
    return (keys[0].keyboardModifiers() &
            (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != Qt::NoModifier;
}

}  // namespace vantorel
