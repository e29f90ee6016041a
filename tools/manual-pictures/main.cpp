#include "hosts/qt/QtColors.h"
#include "panel/PanelTranslations.h"
#include "panel/palettes/PalettesPage.h"
#include "panel/preferences/PreferencesDialog.h"
#include "panel/widgets/PanelTheme.h"
#include "panel/window/PanelWindow.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QHash>
#include <QLineEdit>
#include <QLinearGradient>
#include <QLocale>
#include <QPainter>
#include <QPolygon>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <functional>
#include <string_view>

/// Makes the pictures of the manual from the real window, without a screen. LOCALE is that of a
/// translation, such as "de"; without it, the pictures are English:
///
///     vantorel-manual-pictures FOLDER [LOCALE]
///
/// With --states it makes those pictures of docs/images instead that need more than the options of
/// the panel, in every theme:
///
///     vantorel-manual-pictures --states FOLDER
namespace {

using namespace vantorel;

/// Twice as many pixels as points: sharp on the screens of today, and in print.
constexpr const char* scale = "2";
constexpr const char* scaleOfStates = "1";
constexpr QSize page{320, 340};

template <class Widget>
Widget& child(PanelWindow& window, const char* name)
{
    auto* found = window.findChild<Widget*>(name);
    if (found == nullptr) qFatal("no control is called %s", name);
    return *found;
}

QImage wholeWindow(PanelWindow& window)
{
    // Painting places some controls, so the second picture is used.
    window.grab();
    QApplication::processEvents();
    return window.grab().toImage();
}

/// A strip of the page, in points from its top.
QImage part(PanelWindow& window, int top, int height)
{
    const QImage whole = wholeWindow(window);
    const int ratio = static_cast<int>(whole.devicePixelRatio());
    const QRect place = window.pages().place().geometry();
    return whole.copy(place.x() * ratio, (place.y() + top) * ratio, place.width() * ratio,
                      height * ratio);
}

QImage wholePage(PanelWindow& window)
{
    return part(window, 0, window.pages().place().height());
}

void typeInto(PanelWindow& window, const char* field, const QString& text)
{
    auto& edit = child<QLineEdit>(window, field);
    edit.setFocus();
    edit.selectAll();
    QTest::keyClicks(&edit, text);
}

/// The menu of a pop-up button.
QImage openedMenu(PanelWindow& window, const char* popUp)
{
    QImage image;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        QWidget* menu = QApplication::activePopupWidget();
        if (menu == nullptr) return;
        look.stop();
        image = menu->grab().toImage();
        menu->close();
    });
    look.start(50);
    QTest::mousePress(&child<QWidget>(window, popUp), Qt::LeftButton);
    if (!QTest::qWaitFor([&] { return !image.isNull(); })) qFatal("no menu at %s", popUp);
    return image;
}

/// Returns the image with an index for each colour if it has few, of which letters need fewer than
/// they have. Files of windows with much text are half as large then.
QImage withFewColors(const QImage& image)
{
    constexpr QRgb kept = 0xfff8f8f8;
    constexpr int mostColors = 256;
    QList<QRgb> table;
    QHash<QRgb, uchar> indexes;
    QImage result(image.size(), QImage::Format_Indexed8);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            const QRgb key = pixel & kept;
            auto found = indexes.constFind(key);
            if (found == indexes.constEnd()) {
                if (table.size() == mostColors) return image;
                found = indexes.insert(key, static_cast<uchar>(table.size()));
                table.append(pixel);
            }
            result.scanLine(y)[x] = *found;
        }
    }
    result.setColorTable(table);
    return result;
}

QImage preferences(PanelWindow& window, int pageOfDialog, QSize size)
{
    for (QAction* action : window.actions())
        if (action->shortcut() == QKeySequence(Qt::CTRL | Qt::Key_Comma)) action->trigger();
    auto* dialog = window.findChild<PreferencesDialog*>();
    if (dialog == nullptr) qFatal("there are no preferences");
    dialog->showPage(pageOfDialog);
    dialog->resize(size.expandedTo(dialog->minimumSizeHint()));
    QApplication::processEvents();
    return dialog->grab().toImage();
}

void showSwatches(PanelWindow& window, QSize size)
{
    window.pages().showPageWithKey(QStringLiteral("palettes"));
    window.palettes().setArrangement(PaletteEntriesView::Arrangement::grid);
    window.resizeToPage(size);
    auto& lists = child<QComboBox>(window, "paletteLists");
    lists.setCurrentText(QStringLiteral("SVG Keyword"));
    emit lists.activated(lists.currentIndex());
    QTest::qWait(50);  // for the swatches to be laid out
}

/// An evening at the sea.
QImage painting()
{
    QImage image(720, 440, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    QLinearGradient sky(0, 0, 0, 270);
    sky.setColorAt(0, QColor("#2b3a67"));
    sky.setColorAt(0.6, QColor("#e76f51"));
    sky.setColorAt(1, QColor("#f4a261"));
    painter.fillRect(0, 0, 720, 270, sky);
    painter.setBrush(QColor("#ffe8a3"));
    painter.drawEllipse(QPoint(500, 230), 52, 52);
    QLinearGradient sea(0, 270, 0, 440);
    sea.setColorAt(0, QColor("#2a9d8f"));
    sea.setColorAt(1, QColor("#173f5f"));
    painter.fillRect(0, 270, 720, 170, sea);
    painter.setBrush(QColor("#1b1b2f"));
    painter.drawPolygon(QPolygon({{0, 270}, {0, 190}, {90, 215}, {210, 170}, {330, 270}}));
    painter.setBrush(QColor("#fdfcf5"));
    painter.drawPolygon(QPolygon({{390, 350}, {390, 240}, {450, 350}}));
    painter.setBrush(QColor("#9b2226"));
    painter.drawPolygon(QPolygon({{350, 356}, {460, 356}, {440, 384}, {366, 384}}));
    return image;
}

struct Picture {
    const char* name;
    const char* color;
    /// Contents of the settings file.
    const char* settings;
    std::function<QImage(PanelWindow&)> take;
};

constexpr const char* cssList = "{}";
constexpr const char* svgList = R"({ HexColorLlst = "SVG Keyword"; })";

const std::vector<Picture>& pictures()
{
    static const std::vector<Picture> all{
        {"panel", "#ff7f50", svgList,
         [](PanelWindow& window) {
             PanelMemory memory = window.memory();
             for (const char* color : {"#3b82f6", "#f59e0b", "#10b981", "#ef4444", "#84a98c"})
                 memory.recent.push_back(hostColorFrom(QColor(color)));
             memory.pinned = {hostColorFrom(QColor("#0f172a"))};
             window.recall(memory);
             return wholeWindow(window);
         }},
        {"mix", "#3b82f6", cssList,
         [](PanelWindow& window) {
             window.pages().showPageWithKey(QStringLiteral("mix"));
             window.resizeToPage({232, 246});
             return wholePage(window);
         }},
        {"scales", "#3b82f6", cssList,
         [](PanelWindow& window) {
             window.pages().showPageWithKey(QStringLiteral("scales"));
             window.resizeToPage({296, 292});
             return wholePage(window);
         }},
        {"palettes", "#ff7f50", cssList,
         [](PanelWindow& window) {
             showSwatches(window, {232, 246});
             return wholePage(window);
         }},
        {"snippets", "#ff7f50", cssList,
         [](PanelWindow& window) {
             return withFewColors(preferences(window, 1, {656, 460}));
         }},
        {"colors", "#ff7f50", svgList, wholePage},
        {"settings", "#ff7f50", cssList,
         [](PanelWindow& window) {
             window.pages().currentPicker()->performAction("settingsButtonAction", nullptr);
             return wholePage(window);
         }},
        {"palette", "#ff7f50", R"({ HexColorLlst = "SVG Keyword"; PickModeColorLists = Palette; })",
         wholePage},
        {"wheel", "#ff9900", R"({ PickModeColorLists = Wheel; })", wholePage},
        {"typing-hex", "#ff7f50", cssList,
         [](PanelWindow& window) {
             typeInto(window, "_fullHexText", "#3c6");
             return part(window, 0, 33);
         }},
        {"typing-names", "#ff7f50", svgList,
         [](PanelWindow& window) {
             typeInto(window, "_rgbDecimalText", "lights");
             return part(window, 0, 150);
         }},
        {"input-error", "#ff7f50", svgList,
         [](PanelWindow& window) {
             typeInto(window, "_fullHexText", "12345");
             QTest::keyClick(&child<QLineEdit>(window, "_fullHexText"), Qt::Key_Return);
             return part(window, 0, 100);
         }},
        {"close-names", "#0a0a88", cssList,
         [](PanelWindow& window) { return openedMenu(window, "hexColorNamePopUp"); }},
        {"list-menu", "#ff7f50", cssList,
         [](PanelWindow& window) { return openedMenu(window, "hexColorsListPopUp"); }},
        {"code-line", "#ff7f50",
         R"({ ComponentDisplay = "Code Snippet"; CodeSnippetName = "Java NSInteger 3"; })",
         [](PanelWindow& window) { return part(window, 255, 85); }},
    };
    return all;
}

/// The page Scales with the view of contrasts that a button shows.
QImage contrasts(PanelWindow& window, const char* button)
{
    window.pages().showPageWithKey(QStringLiteral("scales"));
    window.resizeToPage({296, 292});
    window.pages().currentPicker()->performAction("contrast", nullptr);
    child<QAbstractButton>(window, button).click();
    return wholeWindow(window);
}

const std::vector<Picture>& states()
{
    static const std::vector<Picture> all{
        {"palettes-grid", "#ff7f50", cssList,
         [](PanelWindow& window) {
             showSwatches(window, {296, 344});
             return wholeWindow(window);
         }},
        {"picture-colors", "#ff7f50", cssList,
         [](PanelWindow& window) {
             window.pages().showPageWithKey(QStringLiteral("palettes"));
             window.palettes().showPicture(painting());
             auto* dialog = window.findChild<QDialog*>(QStringLiteral("pictureColors"));
             if (dialog == nullptr) qFatal("the picture is not shown");
             QTest::qWait(50);
             return dialog->grab().toImage();
         }},
        {"preferences-general", "#ff7f50", cssList,
         [](PanelWindow& window) {
             return preferences(window, 0, {640, 476});
         }},
        {"preferences-snippets", "#ff7f50", cssList,
         [](PanelWindow& window) {
             return preferences(window, 1, {656, 476});
         }},
        {"scales-matrix", "#3b82f6", cssList,
         [](PanelWindow& window) { return contrasts(window, "scalesContrastView2"); }},
        {"scales-list", "#3b82f6", cssList,
         [](PanelWindow& window) { return contrasts(window, "scalesContrastView3"); }},
    };
    return all;
}

/// A list of the user's own, so that there is one to add.
constexpr const char* ownList =
    "GIMP Palette\nName: Garden\n 76 153   0\tleaf\n 30  61  18\tivy\n221 236 201\tdew\n"
    "255 250 235\tlily\n246 196  39\tbroom\n199  44  65\trose\n 92  45 110\tiris\n"
    " 87  62  42\tsoil\n139 165 190\train\n";

bool writeFile(const QString& path, const char* text)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(text) > 0;
}

/// `ending` follows the picture's name.
bool makePicture(const Picture& picture, const QString& home, const QString& folder,
                 const QString& ending)
{
    if (!writeFile(home + "/Vantorel/Settings.plist", picture.settings)) return false;
    if (!writeFile(home + "/Vantorel/Palettes/Garden.gpl", ownList)) return false;
    if (!writeFile(home + "/Vantorel/Scales.plist", "{ContrastList = Garden;}")) return false;
    QtDesktop desktop;
    const PluginSearch search = loadPlugins({VANTOREL_PICKERS}, {});
    std::vector<Message> problems;
    PanelWindow window(desktop, search.plugins, problems);
    window.resizeToPage(page);
    window.colors().setColor(hostColorFrom(QColor(picture.color)));
    window.show();
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window)) return false;
    QImage image = picture.take(window);
    if (image.format() != QImage::Format_Indexed8)
        image = image.convertToFormat(QImage::Format_RGB888);
    return image.save(folder + '/' + picture.name + ending + ".png", "PNG", 0);
}

}  // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir home;
    const bool makesStates = argc == 3 && std::string_view(argv[1]) == "--states";
    qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", makesStates ? scaleOfStates : scale);
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2 && arguments.size() != 3) {
        static_cast<void>(
            std::fputs("usage: vantorel-manual-pictures FOLDER [LOCALE]\n"
                       "       vantorel-manual-pictures --states FOLDER\n",
                       stderr));
        return 2;
    }
    const bool hasLocale = !makesStates && arguments.size() == 3;
    QLocale::setDefault(hasLocale ? QLocale(arguments[2]) : QLocale::c());
    installTranslations(application);
    QApplication::setCursorFlashTime(0);
    const QStringList themes =
        makesStates ? QStringList{"light", "dark", "contrast"} : QStringList{"light"};
    for (const QString& theme : themes) {
        applyTheme(theme);
        for (const Picture& picture : makesStates ? states() : pictures()) {
            if (makePicture(picture, home.path(), arguments[makesStates ? 2 : 1],
                            makesStates ? '-' + theme : QString()))
                continue;
            static_cast<void>(std::fprintf(stderr, "%s.png could not be made\n", picture.name));
            return 1;
        }
    }
    return 0;
}
