// Writes the panel's memory, for tests that make writing fail or write concurrently.
//
//     panel-memory-changes SHADE [keep-on]
//     panel-memory-changes              (reads the memory and writes it back; exits with 1 if it
//                                        is incomplete)

#include "panel/window/PanelMemory.h"

#include <QByteArray>
#include <QString>

#include <cstdio>
#include <cstdlib>

namespace {

vantorel::PanelMemory memoryOf(int shade)
{
    const double channel = shade / 255.0;
    const auto color = vantorel::HostColor::colorWithCalibratedRed(channel, channel, channel, 1);
    vantorel::PanelMemory memory;
    memory.geometry = QByteArray(66, static_cast<char>(shade));
    memory.page = QStringLiteral("page, \"%1\" é").arg(shade);
    memory.onTop = shade % 2 != 0;
    memory.color = color;
    memory.background = color;
    memory.recent.assign(500, color);
    return memory;
}

bool isWhole(const vantorel::PanelMemory& memory)
{
    if (memory.geometry.isEmpty()) return false;
    const auto whole = memoryOf(static_cast<unsigned char>(memory.geometry.at(0)));
    return memory.geometry == whole.geometry && memory.page == whole.page &&
           memory.onTop == whole.onTop && memory.color == whole.color &&
           memory.background == whole.background && memory.recent == whole.recent;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        const vantorel::PanelMemory memory = vantorel::readPanelMemory();
        return isWhole(memory) && vantorel::writePanelMemory(memory) ? 0 : 1;
    }
    int shade = std::atoi(argv[1]);
    do {
        if (!vantorel::writePanelMemory(memoryOf(shade))) return 1;
        shade = (shade + 7) % 256;
    } while (argc > 2);
    return 0;
}
