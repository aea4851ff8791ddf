#pragma once
#include "platform/ui/child_screen.h"
#include "reports/frame/page_search.h"

#include <QTimer>

class PageThumbnails;
class PageView;
class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QListView;
class QSpinBox;
class QToolBar;
struct FileKind;

class ReportPreview;

// What a report does at its end and at its close.
struct PreviewHooks {
    // Once, when the window is open and all pages are laid. May unload the preview.
    std::function<void(ReportPreview& preview)> finished = {};
    // When the preview of a complete report closes. What it throws keeps it open.
    // One that is closed before its last page has nothing to ask about.
    std::function<void()> queryClose = {};
};

// The window that shows a report while it is made and when it is done. Page 1 is there when it opens; the
// others follow while it answers keys. Several may stand open at once: ScreenRegistry::show.
//
//     auto job = std::make_unique<ReportJob>(ReportJobParts{layout, std::move(rows), events});
//     ScreenRegistry::instance().show(new ReportPreview(std::move(job), hooks));
class ReportPreview : public ChildScreen {
    Q_OBJECT
  public:
    // Lays out page 1; an error of the store on the way comes out of here.
    explicit ReportPreview(std::unique_ptr<ReportJob> job, PreviewHooks hooks = {});
    ~ReportPreview() override;

    const ReportJob& job() const { return *job_; }
    const PageSearch& search() const { return search_; }
    bool queryUnload() override;

  public slots:
    // Printing and saving wait for the last page: until then they do nothing.
    void print();
    void savePdf();
    void saveRichText();
    void saveText();
    void saveSpreadsheet();
    void copyPage();
    void copyReport();

    void findText();  // goes to the search field
    void findNext();
    void findPrevious();
    void goToPage();  // goes to the page field
    void toggleThumbnails();

    // As the frame's commands call them.
    void SaveRecord() { savePdf(); }
    void PrintRecord() { print(); }
    void FirstRecord();
    void PrevRecord();
    void NextRecord();
    void LastRecord();

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void unloading() override { slices_.stop(); }

  private:
    struct Command;
    static const QList<Command>& commands();
    const Command* commandFor(const QKeyEvent* event) const;
    void run(const Command& command);
    void buildBars();
    QToolBar* bar(const QString& name, const QString& caption);
    void addCommands(QToolBar* bar, const QStringList& names);
    QAction* action(const QString& name) const;
    void buildThumbnails();
    void buildZoom();
    void connectView();

    void laySlice();
    void showProgress();
    void complete();
    void tellFinished();
    void showPage(int page);
    void showZoom();
    void zoomAsTyped();
    void searchAsTyped();
    void searchCompletePages();
    void goToHit(qsizetype hit);
    void showHitCount();
    void save(const QString& title, const FileKind& kind);

    void zoomIn();
    void zoomOut();
    void zoomActual();
    void fitWidth();
    void fitPage();
    void singlePage();
    void continuousPages();

    std::unique_ptr<ReportJob> job_;
    PreviewHooks hooks_;
    PageSearch search_;
    qsizetype hit_ = -1;
    bool hasTold_ = false;
    QTimer slices_;
    QHash<QString, QAction*> actions_;
    PageView* view_;
    PageThumbnails* thumbnails_;
    QListView* lvwPages;
    QSpinBox* txtPage;
    QLabel* lblPages;
    QComboBox* cboZoom;
    QLineEdit* txtFind;
    QLabel* lblHits;
};
