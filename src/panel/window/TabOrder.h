#pragma once

#include <QWidget>

#include <vector>

namespace vantorel {

/// Orders Tab through a window by groups of widgets, in the order given. In each group the controls
/// are visited as one reads: by rows from the top, and in each row in the direction of reading. By
/// default Tab follows the order of creation, and pages are created when they are first shown.
void orderTabs(QWidget& window, const std::vector<const QWidget*>& groups);

}  // namespace vantorel
