#include "platform/ui/boxes.h"

#include "platform/ui/front_watch.h"
#include "platform/ui/icons.h"
#include "platform/ui/named_control.h"
#include "platform/ui/popup_frame.h"

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QStyle>
#include <QTabWidget>

static BoxAnswerer& answerer() {
    static BoxAnswerer current;
    return current;
}

static int openBoxes = 0;

void setBoxAnswerer(BoxAnswerer newAnswerer) { answerer() = std::move(newAnswerer); }
bool boxIsOpen() { return openBoxes > 0; }

static QMessageBox::Icon iconOf(BoxIcon icon) {
    switch (icon) {
        case BoxIcon::Critical:
            return QMessageBox::Critical;
        case BoxIcon::Question:
            return QMessageBox::Question;
        case BoxIcon::Exclamation:
            return QMessageBox::Warning;
        case BoxIcon::Information:
            return QMessageBox::Information;
        case BoxIcon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

static const char* pictureOf(BoxIcon icon) {
    switch (icon) {
        case BoxIcon::Critical:
            return "box-critical";
        case BoxIcon::Question:
            return "box-question";
        case BoxIcon::Exclamation:
            return "box-exclamation";
        case BoxIcon::Information:
            return "box-information";
        case BoxIcon::None:
            break;
    }
    return nullptr;
}

// Drawn for this screen, however finely it resolves.
static void setPicture(QMessageBox* window, BoxIcon icon) {
    window->setIcon(iconOf(icon));
    const char* picture = pictureOf(icon);
    if (!picture) return;
    const int size = window->style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, window);
    window->setIconPixmap(bundledIcon(picture).pixmap(QSize(size, size), window->devicePixelRatioF()));
}

struct BoxButton {
    BoxAnswer answer;
    QMessageBox::StandardButton button;
    const char* name;
};

static const BoxButton& buttonOf(BoxAnswer answer) {
    static const BoxButton buttons[] = {{BoxAnswer::Ok, QMessageBox::Ok, "cmdOk"},
                                        {BoxAnswer::Yes, QMessageBox::Yes, "cmdYes"},
                                        {BoxAnswer::No, QMessageBox::No, "cmdNo"},
                                        {BoxAnswer::Cancel, QMessageBox::Cancel, "cmdCancel"}};
    return *std::ranges::find(buttons, answer, &BoxButton::answer);
}

QList<BoxAnswer> boxChoices(const Box& box) {
    if (box.buttons == BoxButtons::Ok) return {BoxAnswer::Ok};
    if (box.buttons == BoxButtons::YesNo) return {BoxAnswer::Yes, BoxAnswer::No};
    return {BoxAnswer::Yes, BoxAnswer::No, BoxAnswer::Cancel};
}

BoxAnswer escapeAnswer(const Box& box) { return boxChoices(box).last(); }

BoxAnswer defaultAnswer(const Box& box) {
    const QList<BoxAnswer> choices = boxChoices(box);
    return choices.contains(box.defaultButton) ? box.defaultButton : choices.first();
}

// A text longer than this would make a box larger than the screen.
static constexpr int longestText = 1500;

static QString shownText(const QString& text) {
    return text.size() <= longestText ? text : text.left(longestText) + "…";
}

static void addButtons(QMessageBox* window, const Box& box) {
    for (const BoxAnswer answer : boxChoices(box)) {
        const BoxButton& button = buttonOf(answer);
        window->addButton(button.button)->setObjectName(button.name);
    }
    window->setDefaultButton(buttonOf(defaultAnswer(box)).button);
    window->setEscapeButton(buttonOf(escapeAnswer(box)).button);
}

static BoxAnswer answerOf(const QMessageBox* window, const Box& box) {
    for (const BoxAnswer answer : boxChoices(box))
        if (window && window->clickedButton() == window->button(buttonOf(answer).button)) return answer;
    return escapeAnswer(box);
}

static QMessageBox* newWindow(const Box& box) {
    auto* window = new QMessageBox(QApplication::activeWindow());
    window->setObjectName("msgBox");
    window->setWindowTitle(box.title);
    window->setAccessibleName(box.title);
    window->setAccessibleDescription(shownText(box.text));
    window->setTextFormat(Qt::PlainText);
    window->setText(shownText(box.text));
    setPicture(window, box.icon);
    addButtons(window, box);
    PopupFrame::dress(window);
    return window;
}

// The window below may close while the box is open, and takes it along.
static BoxAnswer askPerson(const Box& box) {
    const QPointer<QMessageBox> window = newWindow(box);
    window->exec();
    const BoxAnswer answer = answerOf(window, box);
    delete window;
    return answer;
}

BoxAnswer showBox(const Box& box) {
    const FrontHold hold;
    ++openBoxes;
    const auto close = qScopeGuard([] { --openBoxes; });
    if (answerer())
        if (const auto answer = answerer()(box)) return *answer;
    return askPerson(box);
}

void showBoxes(const Boxes& boxes) {
    for (const Box& box : boxes) showBox(box);
}

// A field on a page that is turned away cannot take the focus.
static void turnToPageOf(QWidget* control) {
    for (QWidget* page = control; page && page->parentWidget(); page = page->parentWidget())
        if (auto* tabs = qobject_cast<QTabWidget*>(page->parentWidget()->parentWidget()))
            if (tabs->indexOf(page) >= 0) tabs->setCurrentWidget(page);
}

void showFault(const Fault& fault, QWidget* screen) {
    const bool isTold = !fault.box.text.isEmpty();
    const QPointer<QWidget> stillOpen = screen;
    if (isTold) showBox(fault.box);
    if (!stillOpen || fault.focus.isEmpty()) return;
    auto* control = namedControl<QWidget>(screen, fault.focus);
    turnToPageOf(control);
    control->setFocus(Qt::OtherFocusReason);
    // What a person has just answered No to is not marked to be typed over.
    auto* line = qobject_cast<QLineEdit*>(control);
    if (isTold && line) line->selectAll();
}

bool guarded(const std::function<void()>& action, const QString& title) {
    try {
        action();
        return true;
    } catch (const std::exception& error) {
        showBox(exclamation(title, QString::fromUtf8(error.what())));
        return false;
    }
}
