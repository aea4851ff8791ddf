#include "foundation/setting_files.h"
#include "support/files.h"
#include "support/test_store.h"

#include <QFile>

class SettingFiles : public SessionTest {
  protected:
    void write(const char* name, const QByteArray& text) { writeFile(folder_.filePath(name), text); }
};

TEST_F(SettingFiles, EachReaderKeepsTheTrimmedFirstLineOrItsValue) {
    session().ReportPrinterKind = "D";
    EXPECT_EQ(ReadPrinterIni(), "D");
    write("Printer.ini", "");
    EXPECT_EQ(ReadPrinterIni(), "D");
    write("Printer.ini", "  L  \r\nD\r\n");
    write("CheckPrinter.ini", "D");
    write("ReceiptPrinter.ini", "0123456789012\n");
    write("Receipt.ini", "\nX\n");
    session().ReceiptFormat = "old";
    EXPECT_EQ(ReadPrinterIni(), "L");
    EXPECT_EQ(ReadCheckPrinterIni(), "D");
    EXPECT_EQ(ReadReceiptPrinterIni(), "0123456789");
    EXPECT_EQ(ReadReceiptIni(), "") << "an empty line is a line";
    EXPECT_EQ(session().ReportPrinterKind + session().CheckPrinterKind, "LD");
}

TEST_F(SettingFiles, TheCheckBookHasADefault) {
    const std::pair<const char*, const char*> table[] = {
        {"c\r\n", "C"}, {" p ", "P"}, {"", "P"}, {"\n", "P"}, {"   \n", "P"}};
    for (const auto& [text, format] : table) {
        session().CheckBookFormat = "C";
        write("Check.ini", text);
        ReadCheckIni();
        EXPECT_EQ(session().CheckBookFormat, format) << text;
    }
    write("Check.ini", QByteArray(1'000'000, 'c'));
    ReadCheckIni();
    EXPECT_EQ(session().CheckBookFormat, QString(1000, 'C')) << "no more of it counts";
    QFile::remove(folder_.filePath("Check.ini"));
    session().CheckBookFormat = "C";
    ReadCheckIni();
    EXPECT_EQ(session().CheckBookFormat, "P");
}
