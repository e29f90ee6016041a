#pragma once

namespace vantorel {

/// Which of the panel's two colours the field and the pages edit.
enum class EditedColor { color, background };

}  // namespace vantorel
