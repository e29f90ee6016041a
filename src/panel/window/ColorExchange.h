#pragma once

#include "colornames/ColorNames.h"
#include "host/HostColorPicker.h"
#include "panel/pages/PanelPages.h"
#include "panel/widgets/ColorClipboard.h"
#include "panel/widgets/MessageLabel.h"
#include "panel/widgets/PanelSnippets.h"
#include "panel/window/PanelColors.h"
#include "screenpick/ScreenPicker.h"

#include <QImage>
#include <QObject>

#include <functional>
#include <memory>
#include <vector>

namespace vantorel {

/// Exchanges colours with other programs: through the clipboard, by drops, and by picking from the
/// screen.
class ColorExchange final : public QObject {
    Q_OBJECT

public:
    /// `colors`, `pages`, `window` and `files` must outlive the object. `window` is the parent of
    /// picks from the screen.
    ColorExchange(PanelColors& colors, PanelPages& pages, QWidget& window, const HostFiles& files,
                  std::unique_ptr<ScreenPicker> screenPicker);

    /// The colour's texts with its opacity in every form, with the names of the forms: the hex
    /// code, the other forms of CSS, then lines of code.
    [[nodiscard]] std::vector<HostColorText> colorTexts() const;
    /// The colour in lines of the snippets that pages do not offer: those of the user's file and of
    /// the program. Reports what is wrong in the file.
    [[nodiscard]] std::vector<HostColorText> otherSnippetTexts();
    /// The text that a drag out of the panel carries: in the form of the settings, or the hex code.
    [[nodiscard]] QString draggedText() const;
    /// The text that `copy` copies: in the chosen form, otherwise like that of a drag, with the
    /// opacity.
    [[nodiscard]] QString copiedText();

    /// The name of the form of copies, as in `colorTexts`; empty for that of the page's settings.
    [[nodiscard]] const QString& form() const { return _form; }
    void setForm(const QString& name);
    /// The colour in the chosen form; `std::nullopt` if none is chosen, or if it is not among those
    /// of the page that is shown.
    [[nodiscard]] std::optional<HostColorText> chosenForm();

    /// Remembers the colour, and tells the user that this text of it has been copied.
    void noteCopied(const QString& text);

    /// Sets where the magnifier takes the names of colours from. `names` must outlive all picks.
    void setNames(ColorNames& names) { _names = &names; }
    /// Lets the user pick from the screen, as the preferences say. If `copies` is true, the colour
    /// is copied at once. `done` gets the result for another program, so the preferences do not
    /// decide what follows; it may be null.
    void pickFromScreen(bool copies, ScreenPicker::Callback done);
    /// Lets the user pick colours from the screen until they leave, and gives them to `done` then,
    /// if there are any. The panel's colour stays. Where the desktop has its own picker, one is
    /// picked.
    void pickMany(std::function<void(const std::vector<HostColor>&)> done);
    /// Cancels the pick in progress, if any.
    void cancelPick();
    /// How many picks have succeeded, up to the number from which on no hints are shown.
    [[nodiscard]] int picks() const { return _picks; }
    void setPicks(int count) { _picks = count; }

public slots:
    /// Copies the colour in the form that drags carry, with its opacity.
    void copy();
    void copyHexCode();
    /// Copies the colour together with this text.
    void copyText(const QString& text);
    void paste();
    void pick() { pickFromScreen(false, {}); }
    void pickAndCopy() { pickFromScreen(true, {}); }
    /// Makes a colour that was brought from elsewhere the panel's colour, or reports why there is
    /// none.
    void takeColor(const ColorOffer& offer);
    /// The same for one of the panel's two colours.
    void takeOneColor(vantorel::EditedColor which, const ColorOffer& offer);

signals:
    /// A pick that no other program has asked for has brought a colour.
    void picked();
    void formChanged();
    /// A picture was pasted, not a colour.
    void picturePasted(const QImage& picture);
    /// A text was copied.
    void copied(const QString& text);
    /// Something the user should know, such as why there is no colour to paste. Empty if something
    /// was done that needs no message.
    void reported(const vantorel::Message& message, vantorel::MessageLabel::Kind kind);

private:
    /// The name that the magnifier shows; empty if there is none.
    [[nodiscard]] std::u16string nameOfPicked(const HostColor& color) const;
    /// The colour as the letter of a form copies it: H, R, S or O.
    [[nodiscard]] QString formOfLetter(char letter) const;
    void takePick(const ScreenPickResult& result);

    PanelColors& _colors;
    PanelPages& _pages;
    QWidget& _window;
    PanelSnippets _snippets;
    std::unique_ptr<ScreenPicker> _screenPicker;
    ColorNames* _names = nullptr;
    QString _form;
    int _picks = 0;
};

}  // namespace vantorel
