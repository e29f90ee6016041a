#pragma once

#ifndef Q_MOC_RUN  // moc cannot read concepts
#include "result/Message.h"
#endif
#include "screenpick/PickOptions.h"

#include <QObject>
#include <QString>

#include <string_view>

namespace vantorel {

class PropertyList;

/// What the panel does with a colour that its user has picked from the screen.
enum class AfterPicking {
    shows,        ///< only shows it
    copies,       ///< copies it, too
    copiesHides,  ///< copies it, and makes room for the program to paste it into
};

/// What the user has set for the panel. Kept in `Vantorel/Preferences.plist` in the folder of the
/// user's configuration.
class PanelPreferences final : public QObject {
    Q_OBJECT

public:
    /// Sizes in percent of the desktop's text.
    static constexpr int usualTextSize = 100;
    static constexpr int largestTextSize = 300;

    /// Reads the file. Values that are missing or damaged are the usual ones, so a file that cannot
    /// be read is as none.
    explicit PanelPreferences(QObject* parent = nullptr);

    /// "auto", "light", "dark" or "contrast".
    [[nodiscard]] const QString& theme() const { return _values.theme; }
    /// Whether the controls are the desktop's, in its colours, whatever the theme is.
    [[nodiscard]] bool usesDesktopStyle() const { return _values.usesDesktopStyle; }
    /// The name for `applyTheme`.
    [[nodiscard]] QString themeInForce() const;
    /// In percent. The text of a panel that runs keeps its size.
    [[nodiscard]] int textSize() const { return _values.textSize; }

    /// Whether the panel keeps running when its window is closed.
    [[nodiscard]] bool staysResident() const { return _values.staysResident; }
    /// The key that picks from anywhere while the panel is resident, as `QKeySequence` writes it in
    /// files; empty if there is none.
    [[nodiscard]] const QString& pickShortcut() const { return _values.pickShortcut; }
    /// Why that key does not work; empty if it does. Not kept.
    [[nodiscard]] const Message& shortcutProblem() const { return _shortcutProblem; }
    void setShortcutProblem(const Message& problem);
    [[nodiscard]] AfterPicking afterPicking() const { return _values.afterPicking; }
    /// The side of the square whose average is picked; one of `averagedSides`.
    [[nodiscard]] int averagedSide() const { return _values.averagedSide; }

    // Each writes one value to the file at once, and leaves all others there as they are: another
    // panel may have changed them, and a later version may have more. A value that cannot be
    // written, which is reported on standard error, holds until the program ends.

    void setTheme(const QString& theme);
    void setUsesDesktopStyle(bool uses);
    void setTextSize(int percent);
    void setStaysResident(bool stays);
    void setPickShortcut(const QString& keys);
    void setAfterPicking(AfterPicking after);
    void setAveragedSide(int side);

signals:
    /// A value has changed, here or, before this one was written, in another panel.
    void changed();

private:
    struct Values {
        QString theme = QStringLiteral("auto");
        bool usesDesktopStyle = false;
        int textSize = usualTextSize;
        bool staysResident = false;
        QString pickShortcut;
        AfterPicking afterPicking = AfterPicking::shows;
        int averagedSide = averagedSides.front();

        bool operator==(const Values&) const = default;
    };

    [[nodiscard]] static Values valuesFrom(const PropertyList& list);
    [[nodiscard]] static PropertyList listFrom(const Values& values);
    void write(std::u16string_view key, const QString& value);

    Values _values;
    Message _shortcutProblem;
};

}  // namespace vantorel
