#pragma once

#include "host/HostControls.h"
#include "host/HostInterfaceFactory.h"
#include "hosts/qt/QtView.h"

#include <QAbstractButton>
#include <QIcon>

#include <memory>

namespace vantorel {

/// A push button, check box or toggle, with a text or a picture.
class QtButton final : public QtMirrored<HostButton> {
public:
    explicit QtButton(const HostControlDescription& description);

protected:
    void stateDidChange() override;

private:
    [[nodiscard]] QAbstractButton* button() const;

    bool _stateIsBeingShown = false;
    /// Expires when the button is destroyed.
    std::shared_ptr<const bool> _life = std::make_shared<bool>(true);
};

/// An icon from an SVG picture. `currentColor` in it becomes the text colour of the theme: that of
/// `ground`, or the program's if null. The picture is rendered for each size and screen.
[[nodiscard]] QIcon iconFromSvg(const std::string& svg, const QWidget* ground = nullptr);

}  // namespace vantorel
