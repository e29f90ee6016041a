#include "testing/driver/DriverRequests.h"

#include <iostream>

int main()
{
    std::ios::sync_with_stdio(false);
    vantorel::Driver driver;
    std::string line;
    while (std::getline(std::cin, line))
        std::cout << driver.reply(line) << std::endl;
    return 0;
}
