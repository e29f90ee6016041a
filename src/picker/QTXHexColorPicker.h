#pragma once

#include "color/QTXHexColorSpec.h"
#include "colorlists/ColorNamesPopUp.h"
#include "host/HostColorPicker.h"
#include "picker/EnterTextFields.h"
#include "picker/PickerOutlets.h"
#include "picker/QTXHexSettingsView.h"
#include "settings/QTXHexSettings.h"
#include "settings/SettingsMerge.h"
#include "view/QTXHexColorsView.h"
#include "view/QTXHexColorsViewOwner.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vantorel {

class PickerInterface;

/// The picker page: holds the current colour and the settings, and keeps every control in sync with
/// them. This class connects the parts of the page. The details of each subject are in the files
/// beside it (QTXHexColorPicker*.cpp, one subject each) and in lower folders.
///
/// Everything runs on the host's user-interface thread. While `syncPanel` writes to the controls,
/// `__holdOffSync` makes `setColor` and every action return at once, so that writing to a control
/// never changes the colour or the settings.
class QTXHexColorPicker final : public HostColorPicker,
                                public QTXHexColorsViewOwner,
                                private EnterTextFieldDelegate,
                                private PickerOutlets {
public:
    static constexpr int hexColorPickerMode = 14;

    /// `bundle` provides the interface file and its pictures. `colorPanel` and `bundle` must
    /// outlive the picker.
    QTXHexColorPicker(std::uint32_t pickerMask, HostColorPanel& colorPanel,
                      const HostBundle& bundle);
    ~QTXHexColorPicker() override;

    // Called by the panel.

    /// The initial request loads the interface file, installs the built-in colour lists and reads
    /// the settings. Returns null if the interface cannot be created.
    HostView* provideNewView(bool initialRequest) override;
    [[nodiscard]] bool supportsMode(int mode) const override;
    [[nodiscard]] int currentMode() const override;
    [[nodiscard]] std::u16string buttonToolTip() const override;
    [[nodiscard]] std::string buttonImage() const override;
    [[nodiscard]] HostSize minContentSize() const override;
    [[nodiscard]] HostSize preferredContentSize() const override;
    void setColor(const std::optional<HostColor>& color) override;
    void viewSizeChanged(HostView* sender) override;
    /// Shows what has changed meanwhile, also the settings that other processes have stored.
    void pageDidAppear() override;
    void pageDidDisappear() override;
    bool performAction(std::string_view name, HostControl* sender) override;
    [[nodiscard]] static bool hasAction(std::string_view name);

    // Called by the colours view and by tests.

    QTXHexColorSpec& hexColorSpec() override { return _hexColorSpec; }
    QTXHexSettings& hexSettings() override { return _hexSettings; }
    [[nodiscard]] bool exactHexColorMatch() const override { return _exactHexColorMatch; }
    [[nodiscard]] std::optional<HostColor> colorRespectingAlpha(
        const std::optional<HostColor>& color) const override;
    [[nodiscard]] HostColorPanel& hostPanel() const override { return colorPanel(); }
    [[nodiscard]] HostButton* incCubeRingsButton() const override
    {
        return increaseCubeRingsButton;
    }
    [[nodiscard]] HostButton* decCubeRingsButton() const override
    {
        return decreaseCubeRingsButton;
    }
    void showCursorReadout() override;
    void hideCursorReadout() override;
    void postCursorReadout(const QTXHexColorSpec* spec) override;
    [[nodiscard]] std::optional<std::u16string> dragString() const override;
    [[nodiscard]] std::optional<std::u16string> dragStringWithDragType(
        CodeDragType type) const override;

    [[nodiscard]] std::optional<std::u16string> dragText() const override;
    [[nodiscard]] std::optional<std::u16string> copyText() const override;
    [[nodiscard]] std::vector<HostColorText> colorTexts() const override;

    /// Writes the current colour and settings to every control, in a fixed order. A hidden page
    /// does so when it appears.
    void syncPanel() override;
    /// Passes the current colour to the panel, which calls `setColor` in turn, and updates all
    /// controls.
    void colorChanged(HostControl* sender);

    /// The minimum size of the page while the settings face is shown. (The name is misspelt on
    /// purpose.)
    [[nodiscard]] HostSize minContentSizeWitSettings() const;
    [[nodiscard]] QTXHexColorsView& hexColorsView() { return _hexColorsView; }
    [[nodiscard]] const QTXHexColorsView& hexColorsView() const { return _hexColorsView; }
    /// The title of the name pop-up's first item: "No Match", or the names of close colours.
    [[nodiscard]] const std::u16string& noMatchString() const { return _noMatchString; }
    /// The keys of the naming list that are close to the current colour.
    [[nodiscard]] const std::vector<std::u16string>& holdCloseMatchColors() const
    {
        return __holdCloseMatchColors;
    }

private:
    using ActionMethod = void (QTXHexColorPicker::*)(HostControl* sender);
    struct NamedAction {
        std::string_view name;
        ActionMethod method;
    };
    /// Returns the action of that name, which controls and hosts use
    /// (QTXHexColorPickerActions.cpp), or null.
    static const NamedAction* actionNamed(std::string_view name);
    HostControl::Action actionFunction(const std::string& name);

    // Life cycle (QTXHexColorPicker.cpp).
    bool loadInterface();
    void awakeFromNib();
    void fillSettingsPopUps();
    void loadFullHex();
    /// Describes the colours view in words: hex code, name and mode; first of all, the cell that
    /// the keys have reached.
    [[nodiscard]] std::u16string colorsDescription() const;
    [[nodiscard]] std::u16string keyCellDescription(const QTXHexColorsView::KeyCell& cell) const;

    // Texts (QTXHexColorPickerTexts.cpp).
    [[nodiscard]] QTXHexColorSpec colorSpecWithPanelAlpha() const;
    /// Returns the text of a drag, with the opacity added to forms that leave it out.
    [[nodiscard]] std::optional<std::u16string> copyTextWithDragType(CodeDragType type) const;

    // Synchronising (QTXHexColorPickerSync.cpp).
    void syncExactness(const std::u16string& red, const std::u16string& green,
                       const std::u16string& blue);
    void syncNamingList();
    void syncCodeSnippet();
    void syncViewModeButtons();

    // Typing (QTXHexColorPickerEntry.cpp).
    void hexEntryTextChange(HostTextField& field) override;
    void rgbDecimalEntryTextChange(HostTextField& field) override;
    void redHexAction(HostControl* sender);
    void greenHexAction(HostControl* sender);
    void blueHexAction(HostControl* sender);
    void fullHexAction(HostControl* sender);
    void rgbDecimalHexAction(HostControl* sender);
    void enterComponent(HostTextField* field, int componentIndex);
    void connectEntryFields();
    void stepComponent(HostTextField& field, int componentIndex, int amount);
    void flagInputError();

    // Settings controls (QTXHexColorPickerSettings.cpp).
    void entryFormAction(HostControl* sender);
    void poundSignAction(HostControl* sender);
    void componentDisplayAction(HostControl* sender);
    void cCodeEntryFormAction(HostControl* sender);
    void codeDragTypePopupAction(HostControl* sender);
    void increaseCubeRingsAction(HostControl* sender);
    void decreaseCubeRingsAction(HostControl* sender);
    void sliderViewModeAction(HostControl* sender);
    void paletteViewModeAction(HostControl* sender);
    void cubeViewModeAction(HostControl* sender);
    void setPickViewMode(PickViewMode mode);
    void storeDefaults();
    /// Takes in the settings that other processes have stored.
    void takeInDefaults();

    // The two faces and their layout (QTXHexColorPickerFaces.cpp).
    void settingsButtonAction(HostControl* sender);
    void settingsDoneButtonAction(HostControl* sender);
    void moreIndicatorAction(HostControl* sender);
    void helpHexColorAction(HostControl* sender);
    void toggleSettingsView();
    void makeRoomForSettings();
    void fixSettingsView();
    void checkTrackingStatus();

    // The list and name pop-ups (QTXHexColorPickerLists.cpp).
    void buildColorListsPopup();
    void syncListColorNames();
    void syncListColor();
    void closeColorMenuPoppingUp();
    void addToActiveColorListsAction(const std::u16string& title);
    void removeFromActiveColorListsAction(const std::u16string& title);
    void colorListHexAction(HostControl* sender);
    void colorNameHexAction(HostControl* sender);
    [[nodiscard]] std::shared_ptr<HostColorList> namingList() const;

    const HostBundle& _bundle;
    QTXHexColorsView _hexColorsView;
    QTXHexSettingsView _hexSettingsView;
    /// Declared after the two contents above, which its views refer to, and before everything that
    /// refers to controls: members are destroyed in reverse order.
    std::unique_ptr<PickerInterface> _interface;
    std::unique_ptr<QTXHexEnterTextField> _hexEnterTextField;
    std::unique_ptr<QTXRGBDecimalEnterTextField> _rgbDecimalEnterTextField;

    QTXHexSettings _hexSettings;
    SettingsMerge _settingsMerge;
    QTXHexColorSpec _hexColorSpec;
    bool _exactHexColorMatch = false;
    bool __holdOffSync = false;
    bool _isHidden = false;
    /// Whether the controls do not show the current colour and settings, because the page is
    /// hidden.
    bool _mustSync = false;
    /// True until the interface has been loaded. Start-up never writes the settings file, except to
    /// create a missing one.
    bool __holdOffDefaultsStore = true;
    /// False if a settings file exists that could not be loaded. It is then copied before it is
    /// overwritten.
    bool _isSettingsFileLoaded = true;
    /// The settings face closes in a page that becomes smaller than this.
    HostSize _leastSettingsPage;
    std::u16string _noMatchString;
    ColorNamesPopUpFiller _colorNamesFiller;
    ColorListIndex _namingIndex;
    std::vector<std::u16string> __holdCloseMatchColors;
};

}  // namespace vantorel
