#include "platform/ui/file_dialogs.h"
#include "platform/ui/screen_registry.h"
#include "reports/frame/report_preview.h"
#include "reports/frame/save_as.h"
#include "reports/sales_by_town.h"
#include "support/box_script.h"
#include "support/files.h"
#include "support/screen_tour.h"

#include <linux/capability.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>
#include <optional>

#include <gtest/gtest.h>

namespace {
// No file grows beyond a few bytes while this lives, as on a full disk.
class FullDisk {
  public:
    FullDisk() : signal_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit full{100, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, signal_);
    }

  private:
    void (*signal_)(int);
    rlimit before_;
};

// A folder that may not be written in, by the superuser neither.
class ReadOnly {
  public:
    explicit ReadOnly(const QString& folder) : folder_(folder) {
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner);
        syscall(SYS_capget, &header_, before_);
        __user_cap_data_struct less[2] = {before_[0], before_[1]};
        less[0].effective &= ~(1u << CAP_DAC_OVERRIDE);
        syscall(SYS_capset, &header_, less);
    }
    ~ReadOnly() {
        syscall(SYS_capset, &header_, before_);
        QFile::setPermissions(folder_, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

  private:
    QString folder_;
    __user_cap_header_struct header_{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct before_[2] = {};
};

struct Failure {
    const char* name;  // of the file
    const char* advice;
    bool isFull = false, isReadOnly = false;
};
const Failure failures[] = {
    {"folder.txt", "That is the name of a folder. Choose another name."},
    {"none/new.txt", "There is no such folder. Choose another folder."},
    {"old.txt/new.txt", "There is no such folder. Choose another folder."},
    {"n300", "The name is too long. Choose a shorter name."},
    {"old.txt",
     "You are not allowed to save in that folder. Choose another folder. The file of that name is as it was.",
     false, true},
    {"new.txt", "You are not allowed to save in that folder. Choose another folder.", false, true},
    {"old.txt",
     "The file is larger than that disk allows. Choose another disk, or save fewer pages. The file of that "
     "name "
     "is as it was.",
     true},
    {"new.txt", "The file is larger than that disk allows. Choose another disk, or save fewer pages.", true}};

class OutputFailures : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(QDir(folder_.path()).mkdir("folder.txt"));
        writeFile(folder_.filePath("old.txt"), "kept");
    }
    void TearDown() override {
        desk::setDoors({});
        closeOpenScreens();
    }

    // Tries an output at the place of a failure. Whatever it does, the folder is as it was.
    void tryAt(const Failure& failure, const std::function<void(const QString& path)>& output) {
        const QString name = failure.name == QString("n300") ? QString(300, 'n') + ".txt" : failure.name;
        {
            const auto full = failure.isFull ? std::optional<FullDisk>(std::in_place) : std::nullopt;
            const auto readOnly =
                failure.isReadOnly ? std::optional<ReadOnly>(std::in_place, folder_.path()) : std::nullopt;
            output(folder_.filePath(name));
        }
        EXPECT_EQ(QDir(folder_.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                  QStringList({"folder.txt", "old.txt"}))
            << failure.name;
        EXPECT_EQ(contentOf(folder_.filePath("old.txt")), "kept") << failure.name;
    }

    std::unique_ptr<ReportJob> job() {
        return std::make_unique<ReportJob>(ReportJobParts{
            salesByTown, std::make_unique<Rows>(QStringList{"Town", "Name", "Amount"}, manySales(1)),
            salesByTownEvents()});
    }

    QTemporaryDir folder_;
};
}  // namespace

TEST_F(OutputFailures, LeaveNothingBehindAndSayWhatToDo) {
    for (const Failure& failure : failures)
        for (const qsizetype size : {0x80, 0x100000}) {
            QString told;
            tryAt(failure,
                  [&](const QString& path) { told = reportOutput::writeFile(path, QByteArray(size, 'x')); });
            EXPECT_EQ(told, failure.advice) << failure.name;
        }
}

TEST_F(OutputFailures, AreToldByThePreview) {
    auto* preview = new ReportPreview(job());
    ScreenRegistry::instance().show(preview);
    ASSERT_TRUE(QTest::qWaitFor([&] { return preview->job().isComplete(); }));
    for (const auto save : {&ReportPreview::savePdf, &ReportPreview::saveRichText, &ReportPreview::saveText})
        for (const Failure& failure : failures) {
            BoxScript boxes;
            tryAt(failure, [&](const QString& path) {
                desk::Doors doors;
                doors.saveFile = [path](const QString&) { return path; };
                desk::setDoors(doors);
                boxes.expect("Not Saved!", "The file could not be saved: " + path + "\n" + failure.advice);
                (preview->*save)();
            });
        }
}

// It is made in a folder of its own before it is written.
TEST_F(OutputFailures, OfASpreadsheetThatHasNoRoomAreTold) {
    const auto made = job();
    while (made->layOutPage()) {
    }
    BoxScript boxes;
    tryAt({"new.xlsx", "", true}, [&](const QString& path) {
        desk::setDoors({.saveFile = [path](const QString&) { return path; }});
        boxes.expect("Not Saved!", "The file could not be saved: " + path +
                                       "\nThere is no room to make the spreadsheet in " + QDir::tempPath() +
                                       ". Make room there.");
        saveReportAs(nullptr, "Save as Spreadsheet", FileKind::spreadsheet, *made);
    });
}
