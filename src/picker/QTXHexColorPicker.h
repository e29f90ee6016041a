#pragma once

#include "color/QTXHexColorSpec.h"
#include "colorlists/ColorNamesPopUp.h"
#include "host/HostColorPicker.h"
#include "picker/EnterTextFields.h"
#include "picker/PickerOutlets.h"
#include "picker/QTXHexSettingsView.h"
#include "settings/QTXHexSettings.h"
#include "view/QTXHexColorsView.h"
#include "view/QTXHexColorsViewOwner.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vantorel {

class PickerInterface;

/// The picker page: holds the current colour and the settings, and keeps every control in step with
/// them. It is the spine of the page; what a control does in detail lies in the files beside it
/// (QTXHexColorPicker*.cpp, one subject each) and in the folders below.
///
/// Everything runs on the host's user-interface thread. While `syncPanel` writes into the controls,
/// `__holdOffSync` makes `setColor` and every action return at once, so that writing a control
/// never feeds back into the colour or the settings.
class QTXHexColorPicker final : public HostColorPicker,
                                public QTXHexColorsViewOwner,
                                private EnterTextFieldDelegate,
                                private PickerOutlets {
public:
    static constexpr int hexColorPickerMode = 14;

    /// `colorPanel` and `bundle`, which gives the interface file and its pictures, must outlive the
    /// picker.
    QTXHexColorPicker(std::uint32_t pickerMask, HostColorPanel& colorPanel,
                      const HostBundle& bundle);
    ~QTXHexColorPicker() override;

    // What the panel calls.

    /// The initial request loads the interface file, installs the built-in colour lists and reads
    /// the settings. Null when the interface cannot be made.
    HostView* provideNewView(bool initialRequest) override;
    [[nodiscard]] bool supportsMode(int mode) const override;
    [[nodiscard]] int currentMode() const override;
    [[nodiscard]] std::u16string buttonToolTip() const override;
    [[nodiscard]] std::string buttonImage() const override;
    [[nodiscard]] HostSize minContentSize() const override;
    void setColor(const std::optional<HostColor>& color) override;
    void viewSizeChanged(HostView* sender) override;
    bool performAction(std::string_view name, HostControl* sender) override;
    [[nodiscard]] static bool hasAction(std::string_view name);

    // What the colours view and tests ask.

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
    [[nodiscard]] std::vector<HostColorText> colorTexts() const override;

    /// Writes the current colour and settings into every control, in a fixed order.
    void syncPanel() override;
    /// Hands the current colour to the panel, which echoes it, and synchronises.
    void colorChanged(HostControl* sender);

    /// The smallest page with the settings face open. (The name is spelled so on purpose.)
    [[nodiscard]] HostSize minContentSizeWitSettings() const;
    [[nodiscard]] QTXHexColorsView& hexColorsView() { return _hexColorsView; }
    [[nodiscard]] const QTXHexColorsView& hexColorsView() const { return _hexColorsView; }
    /// The title of the name pop-up's first item: "No Match", or the names of the close colours.
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
    /// The actions that controls and hosts can name (QTXHexColorPickerActions.cpp).
    static const NamedAction* actionNamed(std::string_view name);
    HostControl::Action actionFunction(const std::string& name);

    // Life (QTXHexColorPicker.cpp).
    bool loadInterface();
    void awakeFromNib();
    void fillSettingsPopUps();
    void loadFullHex();
    /// What the colours view shows, in words: code, name and mode.
    [[nodiscard]] std::u16string colorsDescription() const;

    // Texts (QTXHexColorPickerTexts.cpp).
    [[nodiscard]] QTXHexColorSpec colorSpecWithPanelAlpha() const;

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
    void flagInputError();

    // The settings' controls (QTXHexColorPickerSettings.cpp).
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

    // The two faces and their layout (QTXHexColorPickerFaces.cpp).
    void settingsButtonAction(HostControl* sender);
    void settingsDoneButtonAction(HostControl* sender);
    void moreIndicatorAction(HostControl* sender);
    void helpHexColorAction(HostControl* sender);
    void toggleSettingsView();
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
    /// After the two contents above, which its views show, and before all that refers to controls.
    std::unique_ptr<PickerInterface> _interface;
    std::unique_ptr<QTXHexEnterTextField> _hexEnterTextField;
    std::unique_ptr<QTXRGBDecimalEnterTextField> _rgbDecimalEnterTextField;

    QTXHexSettings _hexSettings;
    QTXHexColorSpec _hexColorSpec;
    bool _exactHexColorMatch = false;
    bool __holdOffSync = false;
    /// Set until the interface is awake: start-up itself never writes the settings file, apart from
    /// making it when it is missing.
    bool __holdOffDefaultsStore = true;
    /// Otherwise the file is kept beside the one that takes its place.
    bool _isSettingsFileTakenIn = true;
    std::u16string _noMatchString;
    ColorNamesPopUpFiller _colorNamesFiller;
    ColorListIndex _namingIndex;
    std::vector<std::u16string> __holdCloseMatchColors;
};

}  // namespace vantorel
