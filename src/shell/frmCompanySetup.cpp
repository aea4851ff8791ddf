#include "shell/frmCompanySetup.h"

#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "platform/ui/boxes.h"
#include "platform/ui/closing_question.h"
#include "platform/ui/field_width.h"
#include "platform/ui/file_dialogs.h"
#include "platform/ui/form.h"
#include "platform/ui/settled.h"
#include "platform/ui/text_box.h"

#include <QImageReader>
#include <QVBoxLayout>

namespace {

constexpr const char* logoColumn = "CompanyLogo";
constexpr QSize logoSize(220, 160);

}  // namespace

frmCompanySetup::frmCompanySetup()
    : RecordScreen("frmCompanySetup", "Company Parameter Setup", FillsFrame),
      txtTax(makeBox("txtTax")),
      imgLogo(new QLabel) {
    build();
    guarded([this] { load(); });
}

TextBox* frmCompanySetup::makeBox(const QString& name) {
    auto* box = new TextBox(name);
    box->setKeyFilter(keys::freeText());
    connect(box, &TextBox::textChanged, this, [this] { mblnUpdated = true; });
    return box;
}

void frmCompanySetup::build() {
    auto* grid = new QGridLayout;
    grid->setColumnStretch(1, 1);
    grid->setVerticalSpacing(8);
    for (const CompanyField& field : companyFields()) makeField(grid, field);
    txtTax->setAlignment(Qt::AlignRight);
    boxes_[logoColumn]->setReadOnly(true);

    auto* columns = new QHBoxLayout;
    columns->addLayout(grid, 1);
    columns->addSpacing(16);
    columns->addLayout(makeLogo());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 20);
    layout->addLayout(columns);
    layout->addStretch();
}

static void addField(QGridLayout* grid, const QString& label, TextBox* box, int characters) {
    const int row = grid->rowCount();
    grid->addWidget(form::label(label, box), row, 0);
    grid->addLayout(field_width::upTo(box, characters), row, 1);
}

void frmCompanySetup::makeField(QGridLayout* grid, const CompanyField& field) {
    // The tax stands in front of the signature lines.
    if (field.column == QLatin1StringView("Prepared"))
        addField(grid, "Value Added Ta&x :", txtTax, field_width::count);
    TextBox* box = makeBox(field.control);
    box->setMinimumWidth(form::charactersWide(box, 30));
    box->setCapacity(field.capacity);
    boxes_[field.column] = box;
    addField(grid, field.label, box, field_width::remarks);
}

QLayout* frmCompanySetup::makeLogo() {
    imgLogo->setObjectName("imgLogo");
    imgLogo->setAccessibleName("Company Logo");
    imgLogo->setFixedSize(logoSize);
    imgLogo->setAlignment(Qt::AlignCenter);
    imgLogo->setFrameShape(QFrame::StyledPanel);
    QPushButton* search = form::button("cmdSearch1", "Brow&se...");
    QPushButton* clear = form::button("cmdClear", "&Clear Logo");
    connect(search, &QPushButton::clicked, this, &frmCompanySetup::cmdSearch1_Click);
    connect(clear, &QPushButton::clicked, this, &frmCompanySetup::cmdClear_Click);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(search);
    buttons->addWidget(clear);
    auto* column = new QVBoxLayout;
    column->addWidget(imgLogo);
    column->addLayout(buttons);
    column->addStretch();
    return column;
}

void frmCompanySetup::load() {
    const CompanyProfile profile = loadCompany(StoreConnection());
    loaded_ = profile.loaded;
    for (auto box = boxes_.begin(); box != boxes_.end(); ++box)
        box.value()->setText(profile.texts.value(box.key()));
    txtTax->setText(profile.tax);
    showLogo();
    mblnUpdated = false;
}

CompanyProfile frmCompanySetup::typed() const {
    CompanyProfile profile;
    for (auto box = boxes_.begin(); box != boxes_.end(); ++box)
        profile.texts[box.key()] = box.value()->text();
    profile.tax = txtTax->text();
    profile.loaded = loaded_;
    return profile;
}

// A file that cannot be read leaves the picture empty.
void frmCompanySetup::showLogo() {
    const QString path = boxes_[logoColumn]->text();
    const QPixmap picture =
        path.isEmpty() ? QPixmap() : QPixmap::fromImageReader(std::make_unique<QImageReader>(path).get());
    imgLogo->clear();
    if (!picture.isNull())
        imgLogo->setPixmap(picture.scaled(logoSize, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

bool frmCompanySetup::SaveRecord() {
    try {
        const Outcome outcome = saveCompany(StoreConnection(), typed());
        if (isDone(outcome)) load();
        return settled(outcome, this);
    } catch (const StoreError& error) {
        showBox(saveErrorBox(error));
        return false;
    }
}

void frmCompanySetup::RefreshRecord() {
    static const Box forget = question(
        "Refresh?", "What You Have Typed Will Be Gone! Show the Details as They are Stored?", BoxAnswer::No);
    if (mblnUpdated && !askYes(forget)) return;
    guarded([this] { load(); });
}

bool frmCompanySetup::queryUnload() {
    return settleChanges(*this, [this] { return SaveRecord(); });
}

void frmCompanySetup::cmdSearch1_Click() {
    TextBox* box = boxes_[logoColumn];
    const QString path = desk::openFile(this, "Select Company Logo", box->text(), "*.*");
    if (path.isEmpty()) return;
    box->setText(path);
    showLogo();
}

void frmCompanySetup::cmdClear_Click() {
    boxes_[logoColumn]->clear();
    showLogo();
}
