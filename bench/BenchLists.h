#pragma once

#include "host/HostColorList.h"

#include <memory>
#include <string>

namespace vantorel {

/// A list of that many names whose colours are spread over the cube, off the grid of the digits.
inline std::shared_ptr<HostColorList> listOfSize(int count)
{
    auto list = std::make_shared<HostColorList>(u"Bench");
    for (int i = 0; i < count; ++i) {
        const std::string number = std::to_string(i);
        list->setColor(
            HostColor::colorWithCalibratedRed(((i * 37) % 255) / 255.0, ((i * 101) % 255) / 255.0,
                                              ((i * 7 + i / 255) % 255) / 255.0, 1),
            u"name " + std::u16string(number.begin(), number.end()));
    }
    return list;
}

}  // namespace vantorel
