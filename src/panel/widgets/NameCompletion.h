#pragma once

#include "host/HostColor.h"

#include <QCompleter>
#include <QLineEdit>
#include <QString>

#include <vector>

namespace vantorel {

/// Completes the names of colours while they are typed: those that begin with the text appear below
/// the field, each with its colour.
class NameCompletion final : public QObject {
    Q_OBJECT

public:
    /// The object belongs to `field`.
    explicit NameCompletion(QLineEdit& field);

    struct Row {
        QString name;
        HostColor color = HostColor::blackColor();
    };
    /// Sets the names in their order.
    void setRows(std::vector<Row> rows);

signals:
    /// The user has chosen one of the names. The field has it as its text.
    void chosen(const QString& name);

private:
    class Model;

    QLineEdit& _field;
    Model* _model;
    QCompleter* _completer;
};

}  // namespace vantorel
