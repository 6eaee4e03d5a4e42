#include "shell/frm_kelvo.h"

#include <utility>

#include "batch/run_batch.h"
#include "common/application_folder.h"
#include "panels/one_point_panel.h"
#include "panels/parameter_panels.h"
#include "panels/plot_settings_panel.h"
#include "panels/print_mode_panel.h"
#include "shell/checked_text.h"
#include "shell/common_dialog.h"
#include "shell/configuration.h"
#include "shell/file_menu.h"
#include "shell/point_pictures.h"
#include "shell/printing.h"
#include "shell/recent_files.h"
#include "shell/saved_results.h"
#include "shell/small_commands.h"
#include "shell/spoken_commands.h"
#include "shell/viewer.h"

namespace kelvo {

namespace {

constexpr double kShareOfScreen = 0.88;
constexpr double kMenuHeight = 700;  // twips

ProgramState stateFor(std::string applicationFolder) {
    ProgramState state;
    state.applicationFolder = std::move(applicationFolder);
    state.CfgPath = state.inApplicationFolder(kSettingsFile);
    state.CorPath = state.inApplicationFolder(kKnownPointsFile);
    return state;
}

Services withMessages(const Services& services, MessageBoxes& messages) {
    return {.disk = services.disk,
            .messages = messages,
            .programs = services.programs,
            .dialogs = services.dialogs,
            .rawPrinter = services.rawPrinter,
            .beeper = services.beeper,
            .clock = services.clock,
            .screen = services.screen,
            .pointer = services.pointer,
            .surfaces = services.surfaces,
            .programEnd = services.programEnd,
            .alarm = services.alarm,
            .journal = services.journal};
}

}  // namespace

// Everything in the window, in the order in which it rests on each other.
struct frmKelvo::Members final : RunView {
    Members(std::string applicationFolder, const Services& theServices)
        : messages(theServices.messages),
          services(withMessages(theServices, messages)),
          state(stateFor(std::move(applicationFolder))) {
        menus.mnuBatchGo.onClick = [this] { mnuBatchGo_Click(); };
    }

    void Form_Load();
    void noteUntouchedPanels();
    void saveSettings();
    void Form_Close();
    void mnuBatchGo_Click();

    // What a run asks of the window.
    void runBegins() override {
        status.runBegins(state.RecentFiles[1]);
        frmeOne.setVisible(false);
    }
    void messageComes(long line, const std::string& text) override { status.add({line, text}); }
    void showResult() override { viewer.showRunResult(); }

    void writeCfgFile() { WriteCfgFile(state, services.disk, services.messages); }

    HeardMessages messages;
    Services services;
    ProgramState state;
    StatusLine status;
    Form form;
    Control& window = form.window("frmKelvo");
    MenuControls menus{form};
    Control& Image1 = form.picture("Image1", "frmKelvo");
    Control& frmeOne = form.frame("frmeOne", "frmKelvo", "");
    ParameterPanels parameters{form, state};
    OnePointPanel onePoint{form,
                           frmeOne,
                           parameters,
                           state,
                           services.disk,
                           services.messages,
                           [this] { writeCfgFile(); }};
    ViewerControls viewerControls{form};
    PlotSettingsPanel settings{form, state, services.disk, services.messages};
    PrintModePanel printMode{form, window, frmeOne, viewerControls.frmeFile};
    CommonDialog cmd{services.dialogs};
    RecentFileList recent{state, window, menus, services.disk, services.messages};
    PointPictures pictures{settings, state, services};
    ResultViewer viewer{
        viewerControls, settings.controls(), state, printMode, pictures, recent, cmd, services};
    Printing printing{viewerControls, menus, printMode, viewer, pictures, cmd, state, services};
    FileMenu fileMenu{menus,  frmeOne, state,    viewer,
                      recent, cmd,     services, [this] { Form_Close(); }};
    SavedResults savedResults{menus,  parameters.controls(), onePoint.controls(), state,
                              viewer, services.disk,         services.messages};
    SmallCommands smallCommands{menus,  frmeOne, viewerControls.frmeFile, state,
                                viewer, cmd,     services.disk,           services.messages};
    SpokenCommands spoken{form, state, viewer, messages, status};
};

void frmKelvo::Members::Form_Load() {
    const ScreenSize screen = services.screen.size();
    window.setPosition(0, 0);
    window.setSize(kShareOfScreen * screen.width + window.left(),
                   kShareOfScreen * screen.height + window.top());
    recent.showCaption();

    frmeOne.setPosition(10, 50);
    Image1.setPosition(0, 0);
    Image1.setSize(window.width(), window.height() - kMenuHeight);
    Image1.setVisible(true);
    frmeOne.setVisible(false);
    viewerControls.frmeFile.setPosition(300, 300);
    viewerControls.frmeFile.setVisible(false);
    printMode.controls().frmePrintMode.setPosition(3000, 1500);
    printMode.controls().frmePrintMode.setVisible(false);
    settings.controls().pctPlot.setVisible(false);
    settings.controls().frmePcfg.setVisible(false);

    parameters.fillPresetList();
    printMode.fillLists();
    parameters.showFlags();
    onePoint.FillDefault();
    parameters.FillDefault();
    settings.RestorePcfgFile();
    state.conversion.ParaDirty = true;
    noteUntouchedPanels();
}

// The panels give some values back otherwise than they were read, with nobody touching them.
void frmKelvo::Members::noteUntouchedPanels() {
    const TransPara asRead = state.Cfg;
    try {
        parameters.SaveCfg();
    } catch (const RuntimeFault&) {
        // A box that is empty from the start: the values in front of it are noted.
    }
    state.saved.cfgInPanels = std::exchange(state.Cfg, asRead);
}

void frmKelvo::Members::saveSettings() {
    parameters.SaveCfg();
    writeCfgFile();
    settings.SavePcfgFile();
}

void frmKelvo::Members::Form_Close() {
    saveSettings();
    viewer.journal().keepNow();
    services.programEnd.end();
}

void frmKelvo::Members::mnuBatchGo_Click() {
    const RunPlaces places{.dataFile = state.RecentFiles[1],
                           .detPath = state.inApplicationFolder(kDetailFile),
                           .CorPath = state.CorPath};
    RunBatch(state.conversion, places, *this, services.disk, services.messages);
    spoken.sayRun();
}

frmKelvo::frmKelvo(std::string applicationFolder, const Services& services)
    : members_(std::make_unique<Members>(std::move(applicationFolder), services)) {}

frmKelvo::~frmKelvo() = default;

StatusLine& frmKelvo::status() {
    return members_->status;
}

const std::string& frmKelvo::fileOnView() const {
    return members_->viewer.fileOnView();
}

void frmKelvo::saveOnView() {
    members_->viewer.saveOnView();
}

std::vector<RunMessage> frmKelvo::findingsIn(std::string_view dataFile) const {
    return kelvo::findingsIn(dataFile, members_->state.CorPath, members_->services.disk);
}

Form& frmKelvo::form() {
    return members_->form;
}

ProgramState& frmKelvo::state() {
    return members_->state;
}

const Services& frmKelvo::services() const {
    return members_->services;
}

void frmKelvo::Form_Load() {
    members_->Form_Load();
}

void frmKelvo::Form_Close() {
    members_->Form_Close();
}

PlotPlace frmKelvo::plotPlaceAt(double x, double y, double reach) const {
    return members_->pictures.placeAt(x, y, reach);
}

void frmKelvo::OpenRichText(const std::string& path) {
    members_->viewer.OpenRichText(path);
}

void frmKelvo::UpdateRecentFiles(const std::string& name) {
    members_->recent.UpdateRecentFiles(name);
}

void frmKelvo::saveSettings() {
    members_->saveSettings();
}

UnsavedText frmKelvo::textOnView() const {
    return members_->viewer.journal().onView();
}

bool frmKelvo::keepUnsavedText() {
    return members_->viewer.journal().keepNow();
}

bool frmKelvo::textIsUnsaved() const {
    return members_->viewer.journal().textIsUnsaved();
}

bool frmKelvo::canBringBackText() {
    return members_->viewer.journal().canBringBack();
}

void frmKelvo::bringBackText() {
    ResultViewer& viewer = members_->viewer;
    viewer.journal().bringBack([&](const UnsavedText& text) { viewer.showUnsaved(text); });
}

std::optional<UnsavedText> frmKelvo::waitingText() {
    return members_->viewer.journal().waiting();
}

void frmKelvo::bringBackWaitingText() {
    ResultViewer& viewer = members_->viewer;
    viewer.journal().bringBackWaiting([&](const UnsavedText& text) { viewer.showUnsaved(text); });
}

void frmKelvo::putWaitingTextAside() {
    members_->viewer.journal().putWaitingAside();
}

void frmKelvo::PrintFile(const std::string& name) {
    members_->printing.PrintFile(name);
}

}  // namespace kelvo
