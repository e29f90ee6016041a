#include "panel/PanelRuns.h"

#include "panel/Output.h"
#include "panel/window/ColorChoice.h"

#include <QApplication>

namespace vantorel {

int takePicture(Panel& panel, const PanelOptions& options)
{
    if (!panel.apply(options)) return usageError;
    PanelWindow& window = panel.window();
    window.show();
    QApplication::processEvents();
    // The first painting positions some controls, so the second picture is used.
    window.grab();
    QApplication::processEvents();
    if (window.grab().save(*options.screenshot, "PNG")) return succeeded;
    printProblem(Message{
        phrase("--screenshot: \"%1\" cannot be written", options.screenshot->toStdString())});
    return failed;
}

int letUserChoose(Panel& panel, const PanelOptions& options)
{
    PanelWindow& window = panel.window();
    const PanelMemory recalled = readPanelMemory();
    window.recall(recalled);
    const ColorChoice choice(window);
    panel.apply(options);
    window.show();
    QApplication::exec();
    if (!choice.text()) return cancelled;
    // The window was opened to choose one colour, so only the colour is saved in the panel's
    // memory.
    PanelMemory memory = recalled;
    memory.recent = window.colors().recent();
    changePanelMemory(recalled, memory);
    return printResult(*choice.text() + u'\n');
}

}  // namespace vantorel
