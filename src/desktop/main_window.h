// The window: widgets around one frmKelvo.
#pragma once

#include <QMainWindow>
#include <QPrinter>
#include <memory>
#include <string>

#include "desktop/event_gate.h"
#include "desktop/fault_report.h"
#include "desktop/look_menu.h"
#include "desktop/panel_layouts.h"
#include "desktop/panel_stage.h"
#include "desktop/paper_surface.h"
#include "desktop/plot_view.h"
#include "desktop/point_export.h"
#include "desktop/point_import.h"
#include "desktop/screen_services.h"
#include "desktop/several_runs.h"
#include "desktop/status_bar.h"
#include "desktop/text_on_view.h"
#include "desktop/timer_alarm.h"
#include "desktop/unsaved_text_bar.h"
#include "desktop/widget_book.h"
#include "desktop/window_place.h"
#include "desktop/work_menu.h"
#include "shell/frm_kelvo.h"
#include "shell/journal_folder.h"

namespace kelvo::desktop {

class MainWindow final : public QMainWindow, private Surfaces {
    Q_OBJECT

public:
    // The application folder is there with its folder "data".
    explicit MainWindow(const std::string& applicationFolder);
    ~MainWindow() override;

    // Runs Main and shows the window. False if a fault ended the start.
    bool start();

    // Does what choosing this data file in the open dialog does. The name is the system's, of any
    // bytes.
    void openDataFile(const std::string& path);
    // What a first start shows: the sample that it has written, and which key runs it.
    void showSample();
    // Shows what a run has written.
    void openResultFile(const std::string& path);
    // Each data file as a run of its own; a box says at the end what each one gave.
    void convertFiles(const std::vector<std::string>& paths);

    // What a printed document is called, and the file that it is printed into: no path, no ending.
    [[nodiscard]] QString documentName() const;

    // Ends as closing does, but asks and shows nothing: what is unsaved waits for the next start,
    // and what a box asks is cancelled. For a session that ends and a terminal that goes.
    void endWithoutAsking();

    // Puts away what is unsaved, and the settings as far as they can be, and goes on.
    void prepareForTheEnd();

    [[nodiscard]] frmKelvo& program() { return *program_; }
    [[nodiscard]] WidgetBook& book() { return *book_; }
    [[nodiscard]] EventGate& gate() { return gate_; }
    [[nodiscard]] PaperSurface& paper() { return paper_; }

    // In place of the report box and the end of the process; for tests.
    std::function<void(const QString& report)> onFaultReport;
    // In place of the preview; for tests.
    std::function<void(std::vector<Sheet> sheets)> onSheets;
    // In place of the desktop's view of a folder; for tests.
    std::function<void(const QString& folder)> onFolder;

protected:
    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Surface& screen() override;
    Surface& printer() override { return paper_; }

    // Several data files are converted one after the other; of anything else the first is shown.
    void openFiles(const std::vector<std::string>& paths);
    void buildPanels();
    void bindWindow();
    void addShortcuts();
    void addBottomLine();
    void addCornerMenus();
    void fillWorkMenu(WorkMenu& menu);
    void chooseDataFiles();
    void copyPoint(const std::string& text);
    void beforeEvent(EventGate::Event event);
    void afterEvent(EventGate::Event event);
    void watchUnsavedText();
    void addBringBack();
    void keepUnsavedText();
    void offerUnsavedText();
    [[nodiscard]] Rescued rescueUnsavedText();
    void reportFault(int number, const std::string& text);
    void printWaitingSheets();
    [[nodiscard]] QPrinter& systemPrinter();
    [[nodiscard]] QString settingsFile() const;

    std::string applicationFolder_;
    EventGate gate_;
    DialogParent dialogParent_;
    PaperSurface paper_;
    std::unique_ptr<QPrinter> printer_;  // asked for late: looking for printers takes its time

    PlatformDisk disk_;
    ScreenMessages messages_;
    ScreenDialogs dialogs_;
    DetachedPrograms programs_;
    RawPrintService rawPrinter_;
    ScreenBeeper beeper_;
    LocaleClock clock_;
    PrimaryScreen primaryScreen_;
    OverridePointer pointer_;
    WindowEnd end_;
    TimerAlarm alarm_;
    JournalFolder journal_;

    std::unique_ptr<frmKelvo> program_;
    std::unique_ptr<WidgetBook> book_;
    PanelStage* stage_ = nullptr;
    WindowPlace place_{*this};
    FilePanel filePanel_;
    StatusBar* status_ = nullptr;
    TextOnView* text_ = nullptr;
    std::unique_ptr<PointExport> export_;
    std::unique_ptr<PointImport> import_;
    LookMenu* look_ = nullptr;
    UnsavedTextBar* unsavedTextBar_;
    QTimer latestTake_;  // of text typed without a pause
};

}  // namespace kelvo::desktop
