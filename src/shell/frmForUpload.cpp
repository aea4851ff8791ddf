#include "shell/frmForUpload.h"

#include "books/numbering.h"
#include "foundation/session.h"
#include "platform/masks.h"
#include "platform/store/store_care.h"
#include "platform/ui/boxes.h"
#include "platform/ui/form.h"
#include "platform/ui/frmStatus.h"
#include "platform/ui/list_look.h"
#include "platform/ui/list_view.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QLabel>
#include <QProgressBar>

namespace {
QList<QStringList> documentRows(const QList<QueuedDocument>& documents) {
    QList<QStringList> rows;
    for (const QueuedDocument& document : documents)
        rows += {document.bookId, document.reference, formatDate(document.date), document.contactName};
    return rows;
}

QList<QStringList> itemRows(const QList<QueuedItem>& items) {
    QList<QStringList> rows;
    for (const QueuedItem& item : items) rows += {item.itemCode, item.description, "Ready for Processing"};
    return rows;
}

QString counted(qsizetype count, const char* one, const char* many) {
    return QString("%1 %2").arg(formatCount(count), count == 1 ? one : many);
}

QString waiting(qsizetype documents, qsizetype items) {
    const bool one = documents + items == 1;
    return QString("%1 and %2 %3 for the end of day.")
        .arg(counted(documents, "document", "documents"), counted(items, "item", "items"),
             one ? "waits" : "wait");
}

QToolButton* captioned(QToolButton* button, const char* caption) {
    button->setText(caption);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    return button;
}

Box alreadyUploaded() { return information("Zevrin!", "Transactions Already Uploaded!"); }

Box postingProblem() {
    return exclamation("Error!",
                       "There seems to be a problem Posting Stock Valuation transactions! Sales Record might "
                       "be Deleted!");
}

Box initializingProblem() {
    return exclamation("Error!",
                       "There seems to be a problem Initializing Stock Valuation transactions! Please Try "
                       "Again!");
}
}  // namespace

frmForUpload::frmForUpload() : ChildScreen("frmForUpload", "End of Day Transactions...") {
    lvwTransaction = new ListView(
        "lvwTransaction",
        {{"Book ID", 9}, {"Reference", 16}, {"Date", 12, ListColumn::Date}, {"Contact Name", 40}}, this);
    lvwItems = new ListView("lvwItems", {{"Item Code", 16}, {"Description", 40}, {"Status", 24}}, this);
    list_look::sayWhenEmpty(lvwTransaction, "No documents wait. What is saved in the day stands here.");
    list_look::sayWhenEmpty(lvwItems, "No items wait.");
    lblStatus = form::label(QString());
    lblStatus->setObjectName("lblStatus");
    pbrStatus = new QProgressBar;
    pbrStatus->setObjectName("pbrStatus");
    pbrStatus->setAccessibleName("Progress");
    pbrStatus->setValue(0);
    imgUpload = captioned(form::imageButton("imgUpload", "upload", "Process End of Day Transactions"),
                          "&Process End of Day");
    imgRefresh = captioned(form::imageButton("imgRefresh", "refresh", "Refresh"), "&Refresh");
    imgExit = captioned(form::imageButton("imgExit", "exit", "Exit"), "E&xit");

    auto* bottom = new QHBoxLayout;
    bottom->addWidget(imgUpload);
    bottom->addWidget(imgRefresh);
    bottom->addStretch(1);
    bottom->addWidget(imgExit);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(form::label("&Documents waiting :", lvwTransaction));
    layout->addWidget(lvwTransaction, 3);
    layout->addWidget(form::label("&Items waiting :", lvwItems));
    layout->addWidget(lvwItems, 2);
    layout->addWidget(lblStatus);
    layout->addWidget(pbrStatus);
    layout->addLayout(bottom);
    form::setAccessibleFromTexts(this);
    connect(imgRefresh, &QToolButton::clicked, this, &frmForUpload::RefreshRecord);
    connect(imgUpload, &QToolButton::clicked, this, &frmForUpload::upload);
    connect(imgExit, &QToolButton::clicked, this, &frmForUpload::CloseRecord);
}

QSize frmForUpload::sizeHint() const {
    return {form::charactersWide(this, 100), fontMetrics().height() * 32};
}

bool frmForUpload::receive(const ScreenArguments& arguments) {
    if (!std::exchange(loaded_, true)) reload();
    return !finished_ && ChildScreen::receive(arguments);
}

void frmForUpload::RefreshRecord() {
    reload();
    closeWhenFinished();
}

void frmForUpload::reload() {
    if (!guarded([this] { loadLists(); })) return;
    showLists();
    if (!nothingQueued()) return;
    showBox(alreadyUploaded());
    finished_ = true;
}

void frmForUpload::loadLists() {
    frmStatus progress;
    documents_ = LoadPostingQueue(StoreConnection(), progress);
    items_ = LoadPostingItems(StoreConnection(), progress);
    ResetStockKey(StoreConnection());
}

void frmForUpload::showLists() {
    lvwTransaction->setRows(documentRows(documents_));
    lvwItems->setRows(itemRows(items_));
    lvwTransaction->setEnabled(!nothingQueued());
    lvwItems->setEnabled(!nothingQueued());
    lblStatus->setText(waiting(documents_.size(), items_.size()));
}

void frmForUpload::upload() {
    if (running_) return;
    setRunning(true);
    guarded([this] { postAndCost(); });
    setRunning(false);
    closeWhenFinished();
}

// The books of the day, kept aside. The progress box has gone before any other box comes.
static void backUp() {
    frmStatus progress;
    backUpStore(StoreConnection(), progress);
}

// The last message comes whatever the two passes gave.
void frmForUpload::postAndCost() {
    Boxes boxes;
    passedOver_ = false;
    const bool nothingToPost = documents_.isEmpty();
    const bool posted = PostStockValuation(StoreConnection(), documents_, *this, boxes);
    showBoxes(std::exchange(boxes, {}));
    if (!posted) {
        showBox(postingProblem());
        reload();
    }
    const bool costed = costItems(boxes);
    showBoxes(boxes);
    const bool completed = (posted || nothingToPost) && (costed || items_.isEmpty() || passedOver_);
    if (!costed) {
        showBox(initializingProblem());
        reload();
    }
    if (completed) guarded([] { backUp(); });
    showBox(information("Zevrin!", "End of Day Transactions Successfully Uploaded!"));
    finished_ = true;
}

// The progress box has gone before any other box comes.
bool frmForUpload::costItems(Boxes& boxes) {
    frmStatus progress;
    return InitializeStockValuation(StoreConnection(), items_, *this, boxes, progress);
}

void frmForUpload::setRunning(bool running) {
    running_ = running;
    for (QToolButton* button : {imgRefresh, imgUpload, imgExit}) button->setEnabled(!running);
}

void frmForUpload::closeWhenFinished() {
    if (finished_ && !running_) unload();
}

void frmForUpload::status(const QString& text) {
    lblStatus->setText(text);
    paintNow();
}

void frmForUpload::start(qint64 maximum) {
    // A range of nothing would show a bar that runs on for ever.
    pbrStatus->setRange(0, std::max(1, static_cast<int>(maximum)));
    pbrStatus->setValue(0);
}

void frmForUpload::documentPosted(qsizetype index) {
    lvwTransaction->setCurrentRow(static_cast<int>(index));
    pbrStatus->setValue(static_cast<int>(index) + 1);
    paintNow();
}

void frmForUpload::itemCosted(qsizetype index) {
    lvwItems->setText(static_cast<int>(index), 2, "Successfully Processed");
    lvwItems->setCurrentRow(static_cast<int>(index));
    pbrStatus->setValue(static_cast<int>(index) + 1);
    paintNow();
}

// Keeps the window painting, a few times a second; what a person presses meanwhile waits.
void frmForUpload::paintNow() {
    if (painted_.isValid() && painted_.elapsed() < 40) return;
    painted_.start();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}
