#pragma once

#include "host/HostInterfaceFactory.h"

namespace vantorel {

/// Creates controls made of Qt's widgets.
class QtInterfaceFactory final : public HostInterfaceFactory {
public:
    std::unique_ptr<HostView> makeView(const HostControlDescription& description) override;
    std::unique_ptr<HostCustomView> makeCustomView(const HostControlDescription& description,
                                                   HostViewContent& content) override;
    std::unique_ptr<HostTextField> makeTextField(
        const HostControlDescription& description) override;
    std::unique_ptr<HostButton> makeButton(const HostControlDescription& description) override;
    std::unique_ptr<HostPopUpButton> makePopUpButton(
        const HostControlDescription& description) override;
    [[nodiscard]] std::u16string decimalSeparator() const override;
};

}  // namespace vantorel
