#pragma once

#include "Choices.h"
#include "testing/driver/DriverSession.h"

namespace vantorel {

/// A user with a colour panel without a screen, who does anything that a user and a panel can do to
/// a picker.
class HeadlessUser {
public:
    /// `choices` must outlive the user.
    explicit HeadlessUser(Choices& choices);

    /// Does one thing.
    void act();
    /// Whether a colour of the panel still shows in the fields, as it must after anything.
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
