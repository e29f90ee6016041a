#pragma once

#include <QCoreApplication>
#include <QWidget>

#include <functional>

namespace vantorel {

/// The buttons at the foot of a panel that is asked for one colour: Choose and Cancel.
class ChoiceBar final : public QWidget {
    Q_DECLARE_TR_FUNCTIONS(ChoiceBar)

public:
    /// Both reactions must be set.
    ChoiceBar(QWidget* parent, const std::function<void()>& choose,
              const std::function<void()>& cancel);
};

}  // namespace vantorel
