#include "FuzzTexts.h"
#include "picker/InterfaceFile.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static_cast<void>(vantorel::parseInterfaceFile(vantorel::bytesFrom(data, size)));
    return 0;
}
