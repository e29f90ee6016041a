#pragma once

#include "colornames/ColorNames.h"
#include "panel/widgets/ColorFacts.h"
#include "panel/widgets/ColorField.h"
#include "panel/widgets/FormList.h"
#include "panel/window/ColorExchange.h"

#include <QMenu>
#include <QTimer>

#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace vantorel {

/// The panel's colour as texts: it is read from the field, and shown there, in the lines below and
/// in the list of forms. The field also reads the names of colour lists.
class ColorEntry final : public QObject {
    Q_OBJECT

public:
    /// All must outlive the object.
    ColorEntry(ColorField& field, ColorFacts& facts, FormList& forms, PanelColors& colors,
               PanelPages& pages, ColorExchange& exchange, ColorNames& names);

signals:
    /// The text in the field is no longer wrong.
    void mended();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Lists, and their revisions.
    using OfferedLists =
        std::vector<std::pair<std::shared_ptr<const HostColorList>, std::uint64_t>>;

    /// Returns the colour of a typed text.
    [[nodiscard]] ColorOffer offerOf(const QString& text, ColorNames::Reach reach);
    void read(const QString& text);
    void noteEdit(const QString& text);
    /// Gives the field the names of the lists that the user has chosen, and those of CSS, unless it
    /// has them.
    void offerNames();
    void giveUp();
    /// Shows the colour, also in place of a text that was typed but not entered.
    void show();
    void showTexts();
    void showFacts();
    void fillFormMenu();

    ColorField& _field;
    ColorFacts& _facts;
    FormList& _forms;
    PanelColors& _colors;
    ColorExchange& _exchange;
    ColorNames& _names;
    /// What the field offers names of; `std::nullopt` until it offers any.
    std::optional<OfferedLists> _offered;
    QMenu* _formMenu;
    /// The snippets that pages do not offer.
    QMenu* _snippetMenu;
    QTimer _settingsMayHaveChanged;
};

}  // namespace vantorel
