#include "reports/checks/check_papers.h"

#include "foundation/session.h"
#include "foundation/setting_files.h"
#include "platform/masks.h"

static void loadPictures() { Q_INIT_RESOURCE(checks); }

namespace {
constexpr int checkHeight = 4320;
constexpr int points = 9;

// Left, top, width and height of a control.
struct Place {
    int left, top, width, height;
};

// What the papers differ in.
struct CheckPlaces {
    const char* name;
    int printWidth;
    const char* stars;
    bool isDotMatrix;  // prints letters only
    Place date, payee, amount, words, voucher, voucherLabel, cross;
    Place company = {}, logo = {};
};

constexpr CheckPlaces commercialLaser{.name = "prtCheckOnly",
                                      .printWidth = 11520,
                                      .stars = "***",
                                      .isDotMatrix = false,
                                      .date = {8820, 720, 2070, 270},
                                      .payee = {1440, 1260, 7200, 360},
                                      .amount = {8820, 1260, 2070, 270},
                                      .words = {1170, 1800, 9720, 270},
                                      .voucher = {8640, 2160, 2250, 270},
                                      .voucherLabel = {7200, 2160, 1440, 270},
                                      .cross = {360, 270, 990, 990},
                                      .company = {2340, 360, 3600, 540},
                                      .logo = {6120, 180, 1080, 990}};

constexpr CheckPlaces personalLaser{.name = "prtCheckOnlySmall",
                                    .printWidth = 10050,
                                    .stars = "**",
                                    .isDotMatrix = false,
                                    .date = {7110, 810, 2250, 270},
                                    .payee = {1710, 1350, 5490, 360},
                                    .amount = {7290, 1350, 2070, 270},
                                    .words = {1440, 1860, 7920, 270},
                                    .voucher = {7110, 2250, 2250, 270},
                                    .voucherLabel = {5760, 2250, 1350, 270},
                                    .cross = {360, 360, 990, 990},
                                    .company = {2070, 450, 3150, 540},
                                    .logo = {5220, 360, 1080, 990}};

constexpr CheckPlaces commercialDots{.name = "prtCheckOnlyDotMatrix",
                                     .printWidth = 11160,
                                     .stars = "**",
                                     .isDotMatrix = true,
                                     .date = {8730, 720, 2340, 270},
                                     .payee = {1620, 1170, 7380, 360},
                                     .amount = {9270, 1170, 1800, 270},
                                     .words = {1260, 1710, 9810, 270},
                                     .voucher = {8460, 2070, 2610, 270},
                                     .voucherLabel = {7020, 2070, 1440, 270},
                                     .cross = {450, 810, 1980, 270}};

constexpr CheckPlaces personalDots{.name = "prtCheckOnlySmallDotMatrix",
                                   .printWidth = 10050,
                                   .stars = "**",
                                   .isDotMatrix = true,
                                   .date = {7380, 720, 2250, 270},
                                   .payee = {1710, 1260, 5670, 360},
                                   .amount = {7560, 1260, 2070, 270},
                                   .words = {1440, 1800, 8190, 270},
                                   .voucher = {7110, 2160, 2520, 270},
                                   .voucherLabel = {5760, 2160, 1350, 270},
                                   .cross = {450, 810, 1980, 270}};

// No part of what stands on a check is ever left out.
ReportControl checkField(const char* name, const char* column, const Place& at, Typeface face,
                         const char* fieldMask = nullptr) {
    return whole(field(name, column, at.left, at.top, at.width, at.height,
                       {face, points, false, Qt::AlignLeft}, fieldMask));
}

ReportControl crossMark(const CheckPlaces& at, Typeface face) {
    const Place& cross = at.cross;
    if (at.isDotMatrix)
        return label("imgCrossCheck", "Payee's Account Only", cross.left, cross.top, cross.width,
                     cross.height, {face, 8, false, Qt::AlignLeft});
    loadPictures();
    ReportControl mark = image("imgCrossCheck", cross.left, cross.top, cross.width, cross.height);
    mark.text = ":/checks/crossing.svg";
    return mark;
}

QList<ReportControl> controlsOf(const CheckPlaces& at) {
    const Typeface data = at.isDotMatrix ? Typeface::Arial : Typeface::Verdana;
    const Typeface words = at.isDotMatrix ? Typeface::Arial : Typeface::Tahoma;
    QList<ReportControl> controls{
        checkField("txtCheckDate", "CheckDate", at.date, data, mask::date),
        checkField("txtPayee", "ContactName", at.payee, data),
        checkField("txtCheckAmount", "CheckAmount", at.amount, data, mask::amount),
        checkField("txtAmountInWords", "", at.words, words),
        checkField("txtVoucher", "VoucherID", at.voucher, data),
        label("Label1", "Voucher No. : ", at.voucherLabel.left, at.voucherLabel.top, at.voucherLabel.width,
              at.voucherLabel.height, {data, 8, false, Qt::AlignLeft}),
        crossMark(at, data)};
    if (at.isDotMatrix) return controls;
    controls += checkField("txtCompanyName", "", at.company, Typeface::Tahoma);
    controls += image("imgCheck", at.logo.left, at.logo.top, at.logo.width, at.logo.height);
    return controls;
}

// Check paper is whatever the printer holds, one check below the other.
CheckPaper paperOf(const CheckPlaces& at) {
    ReportLayout layout{at.name,
                        "Check Printout...",
                        printersPaper(0, at.printWidth),
                        {section(SectionKind::Detail, checkHeight, controlsOf(at))}};
    if (at.isDotMatrix) layout.rendering = reportOutput::Rendering::DotMatrix;
    return {layout, at.stars};
}

const CheckPaper& laserPaper(CheckBook book) {
    return book == CheckBook::Commercial ? prtCheckOnly() : prtCheckOnlySmall();
}

const CheckPaper& dotMatrixPaper(CheckBook book) {
    return book == CheckBook::Commercial ? prtCheckOnlyDotMatrix() : prtCheckOnlySmallDotMatrix();
}

bool isDotMatrix(const QString& printer) { return printer.isEmpty() || printer == "D"; }
}  // namespace

const CheckPaper& prtCheckOnly() {
    static const CheckPaper paper = paperOf(commercialLaser);
    return paper;
}

const CheckPaper& prtCheckOnlySmall() {
    static const CheckPaper paper = paperOf(personalLaser);
    return paper;
}

const CheckPaper& prtCheckOnlyDotMatrix() {
    static const CheckPaper paper = paperOf(commercialDots);
    return paper;
}

const CheckPaper& prtCheckOnlySmallDotMatrix() {
    static const CheckPaper paper = paperOf(personalDots);
    return paper;
}

CheckBook defaultCheckBook() {
    ReadCheckIni();
    return session().CheckBookFormat == "C" ? CheckBook::Commercial : CheckBook::Personal;
}

const CheckPaper& checkPaper(CheckBook book) {
    return isDotMatrix(ReadCheckPrinterIni()) ? dotMatrixPaper(book) : laserPaper(book);
}

const CheckPaper* checkPaperFromEntry() {
    const CheckBook book = defaultCheckBook();
    const QString printer = ReadCheckPrinterIni();
    if (isDotMatrix(printer)) return &dotMatrixPaper(book);
    return printer == "L" ? &laserPaper(book) : nullptr;
}
