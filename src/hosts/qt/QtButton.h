#pragma once

#include "host/HostInterfaceFactory.h"
#include "hosts/qt/QtView.h"

#include <QAbstractButton>
#include <QIcon>

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
};

/// An icon from a picture in SVG that says `currentColor` where it takes the text colour of the
/// theme; it is drawn afresh for every size and screen. The theme is that of `ground`, or the
/// program's.
[[nodiscard]] QIcon iconFromSvg(const std::string& svg, const QWidget* ground = nullptr);

}  // namespace vantorel
