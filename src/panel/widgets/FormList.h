#pragma once

#include <QAbstractButton>

#include <utility>
#include <vector>

namespace vantorel {

/// A column of a colour's texts in several forms, as many as fit. A click copies one.
class FormList final : public QWidget {
    Q_OBJECT

public:
    explicit FormList(QWidget* parent = nullptr);

    struct Row {
        /// The name of the form in the user's language, and shortened.
        QString name;
        QString shortName;
        QString text;
    };
    void setRows(const std::vector<Row>& rows);
    /// The height of a row, in pixels.
    [[nodiscard]] static int rowHeight();

signals:
    void chosen(const QString& text);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void layOut();

    std::vector<QAbstractButton*> _buttons;
    std::size_t _used = 0;
};

}  // namespace vantorel
