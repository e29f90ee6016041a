#pragma once

#include "Choices.h"
#include "testing/driver/DriverSession.h"

namespace vantorel {

/// A simulated user of a colour panel without a screen, who does anything that a user and a panel
/// can do to a picker.
class HeadlessUser {
public:
    /// `choices` must outlive the user.
    explicit HeadlessUser(Choices& choices);

    /// Performs one random action.
    void act();
    /// Whether the fields still show a colour set on the panel, as they must after any action.
    [[nodiscard]] bool panelWorks();

private:
    void draw();
    void deliver();
    void type();
    void choose();
    void perform();
    [[nodiscard]] HeadlessTextField& field(const char* name);
    [[nodiscard]] double channel();
    [[nodiscard]] std::optional<HostColor> color();
    [[nodiscard]] double coordinate();
    [[nodiscard]] std::u16string text();

    Choices& _choices;
    DriverPanel _panel;
};

}  // namespace vantorel
