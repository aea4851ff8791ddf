#pragma once
#include "platform/store/connection.h"

#include <QDir>
#include <QString>

// The session values: they live for the process, and are written only by the routines named beside them.
struct Session {
    bool StoreOpen = false;      // OpenDatabase
    QString CurrentUserCode;     // cmdOK of frmOpening: as typed or chosen, untrimmed
    QString CurrentUserName;     // the login validation; "ADMIN" after the master login
    QString CurrentUserCaption;  // load of mdiMain
    QString ReportPrinterKind;   // ReadPrinterIni: "D" dot matrix, "L" laser or inkjet
    QString CheckPrinterKind;    // ReadCheckPrinterIni
    QString ReceiptPrinterKind;  // ReadReceiptPrinterIni
    QString CheckBookFormat;     // ReadCheckIni: "C" commercial, "P" personal checks
    QString ReceiptFormat;       // ReadReceiptIni
    bool ReportFromEntry =
        false;  // a report's starter: from an entry screen, journal or list, not a print screen
    bool ReportDirectPrint =
        false;                     // a report's starter: sent to the printer; stays so until the next preview
    QString ExportFileName;        // the export dialog; empty: none chosen
    bool ClockOffsetTold = false;  // setClock of login.h: the user knows that the machine's clock stays
};

Session& session();
// The one connection to the store, held for the life of the process.
Connection& StoreConnection();

// Where the store and the setting files lie: beside the program. A test or a played day names another place.
QDir programFolder();
void setProgramFolder(const QString& path);

inline constexpr const char* storeFileName = "Quorvel.mdb";
inline constexpr const char* storePassword = "Kolvane";
// The code of the login that the program itself holds; the delivered store has a row for it.
inline constexpr const char* masterUserCode = "Dorvane";
