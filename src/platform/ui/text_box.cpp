#include "platform/ui/text_box.h"

#include "platform/masks.h"
#include "platform/ui/boxes.h"
#include "platform/ui/enter_key.h"

#include <QApplication>
#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QTimer>
#include <QToolTip>
#include <QValidator>

static constexpr int defaultCapacity = 32000;

// Refuses a change that would not fit whole; the line edit then stays as it was.
class OneLineValidator : public QValidator {
  public:
    explicit OneLineValidator(TextBox* box) : QValidator(box), box_(box) {}
    State validate(QString& text, int& /*cursor*/) const override {
        if (box_->holdsWhole(text)) return Acceptable;
        box_->refusedText_ = text;
        return Invalid;
    }

  private:
    TextBox* box_;
};

TextBox::TextBox(const QString& name, QWidget* parent) : QLineEdit(parent), capacity_(defaultCapacity) {
    FrontWatch::instance();
    setObjectName(name);
    setMaxLength(std::numeric_limits<int>::max());
    setValidator(new OneLineValidator(this));
    connect(this, &QLineEdit::inputRejected, this, &TextBox::refused);
    connect(this, &QLineEdit::textEdited, this, [this] {
        if (!typing_) emit keyTyped();
    });
}

void TextBox::setCapacity(int characters) { capacity_ = characters > 0 ? characters : defaultCapacity; }

static bool isLineBreak(QChar c) {
    return c == u'\n' || c == u'\r' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

static bool hasLineBreak(const QString& text) { return std::ranges::any_of(text, isLineBreak); }

bool TextBox::holdsWhole(const QString& text) const {
    return text.size() <= capacity_ && !hasLineBreak(text);
}

void TextBox::fieldGained() {
    if (!clicked_) selectAll();
    emit focusGained();
}

void TextBox::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    clicked_ = event->reason() == Qt::MouseFocusReason;
}

// A click into the box selects all, a drag what was dragged over.
void TextBox::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    if (clicked_ && !hasSelectedText()) selectAll();
    clicked_ = false;
}

static bool isEditKey(const QKeyEvent* event) {
    for (const auto key : {QKeySequence::Cut, QKeySequence::Copy, QKeySequence::Paste,
                           QKeySequence::SelectAll, QKeySequence::Undo, QKeySequence::Redo})
        if (event->matches(key)) return true;
    return false;
}

// Keys that belong to the frame although a line edit knows something to do with them.
static bool isFrameKey(const QKeyEvent* event) {
    if (event->key() == Qt::Key_Delete && event->modifiers() == Qt::ShiftModifier) return true;
    const bool letter = event->key() >= Qt::Key_A && event->key() <= Qt::Key_Z;
    return letter && event->modifiers() == Qt::ControlModifier && !isEditKey(event);
}

bool TextBox::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && isFrameKey(static_cast<QKeyEvent*>(event))) {
        event->ignore();
        return false;
    }
    return QLineEdit::event(event);
}

static bool isTypedText(const QKeyEvent* event) {
    constexpr auto command = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return !event->text().isEmpty() && event->text().at(0).isPrint() && !(event->modifiers() & command);
}

bool TextBox::takesEnter() const { return isSignalConnected(QMetaMethod::fromSignal(&TextBox::entered)); }

void TextBox::keyPressEvent(QKeyEvent* event) {
    if (isFrameKey(event)) return event->ignore();
    if (isEnterKey(event->key())) {
        event->setAccepted(takesEnter());
        emit entered();
    } else if (isReadOnly()) {
        QLineEdit::keyPressEvent(event);
    } else {
        typeKey(event);
    }
}

bool TextBox::refusesKeys(const QString& typed) const {
    return !std::ranges::all_of(typed, [this](QChar key) { return filter_.passes(key); });
}

void TextBox::typeKey(QKeyEvent* event) {
    const bool text = isTypedText(event);
    if (text && refusesKeys(event->text())) {
        QApplication::beep();
        return event->accept();
    }
    typing_ = text || event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete;
    refusedText_.clear();
    QLineEdit::keyPressEvent(event);
    if (!std::exchange(typing_, false)) return;
    if (takeRefused().isEmpty())
        emit keyTyped();
    else
        sayFull();
}

void TextBox::keyReleaseEvent(QKeyEvent* event) {
    QLineEdit::keyReleaseEvent(event);
    emit keyReleased();
}

// Composed characters are typed ones.
void TextBox::inputMethodEvent(QInputMethodEvent* event) {
    if (refusesKeys(event->commitString())) {
        QApplication::beep();
        return event->accept();
    }
    QLineEdit::inputMethodEvent(event);
}

// What a person's last change would have made of the box; empty when it was not refused. A text that stands
// in the box although it is too long was set by the program.
QString TextBox::takeRefused() {
    const QString text = std::exchange(refusedText_, {});
    return text == this->text() ? QString() : text;
}

// The box comes up when the event that pasted is over.
void TextBox::refused() {
    if (!typing_) QTimer::singleShot(0, this, &TextBox::sayRefusedPaste);
}

static QString fullText(int capacity) {
    return QString("This field holds at most %1 characters.").arg(formatCount(capacity));
}

void TextBox::sayFull() {
    QApplication::beep();
    QToolTip::showText(mapToGlobal(rect().bottomLeft()), fullText(capacity_), this);
}

void TextBox::sayRefusedPaste() {
    const QString text = takeRefused();
    if (text.isEmpty()) return;
    QApplication::beep();
    showBox(exclamation("Not pasted!", hasLineBreak(text)
                                           ? "This field holds one line. What you paste has line breaks."
                                           : fullText(capacity_) + " With what you paste it would be " +
                                                 formatCount(text.size()) + "."));
}

// Has the colour of its screen, also after the desk changes its colours.
class ShownBox : public TextBox {
  public:
    explicit ShownBox(const QString& name) : TextBox(name) {
        setReadOnly(true);
        setFocusPolicy(Qt::NoFocus);
        takeScreenColour();
    }

  protected:
    bool event(QEvent* event) override {
        if (event->type() == QEvent::ApplicationPaletteChange) takeScreenColour();
        return TextBox::event(event);
    }

  private:
    void takeScreenColour() {
        QPalette colours;
        colours.setColor(QPalette::Base, QGuiApplication::palette().color(QPalette::Window));
        setPalette(colours);
    }
};

TextBox* readOnlyBox(const QString& name, Qt::Alignment alignment) {
    auto* box = new ShownBox(name);
    box->setAlignment(alignment | Qt::AlignVCenter);
    return box;
}
