#pragma once
#include <QString>
#include <optional>

// The one-line setting files beside the program. Each reader sets its session value and returns it; a missing
// file leaves the value as it was. A blank or missing "Check.ini" reads as "P".
QString ReadPrinterIni();
QString ReadCheckPrinterIni();
QString ReadReceiptPrinterIni();
QString ReadReceiptIni();
void ReadCheckIni();

// Their writers: the session value changes at once, and the file is written whole or not at all. The text of
// the failure; empty: written.
QString WritePrinterIni(const QString& kind);
QString WriteCheckPrinterIni(const QString& kind);
QString WriteCheckIni(const QString& format);

// The first line of any such file; none when there is no file or no line in it.
std::optional<QString> SettingLine(const char* name);
