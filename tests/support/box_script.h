#pragma once
#include "platform/ui/boxes.h"

#include <QList>

// The boxes that a test expects while it lives, in their order, and what a person answers to them. A box that
// is not expected fails the test and is answered as by Esc; so does an expected one that never came.
//
//     BoxScript boxes;
//     boxes.expect("Confirm Delete", "Confirm Deletion of this Record.  Delete Record Now?", BoxAnswer::Yes);
//     driver.press(Qt::Key_Delete);
class BoxScript {
  public:
    BoxScript();
    ~BoxScript();
    BoxScript(const BoxScript&) = delete;
    BoxScript& operator=(const BoxScript&) = delete;

    // An empty title or text stands for any. Without an answer Enter is pressed: the default button.
    BoxScript& expect(const QString& title, const QString& text = {}, std::optional<BoxAnswer> answer = {});
    BoxScript& expect(const Box& box, std::optional<BoxAnswer> answer = {}) {
        return expect(box.title, box.text, answer);
    }
    // What a person does while the next expected box is open.
    BoxScript& meanwhile(std::function<void()> act);
    // From now on any box is fine, is answered with its default button (or as given), and is kept.
    BoxScript& record(std::function<BoxAnswer(const Box&)> answer = defaultAnswer);

    const QList<Box>& shown() const { return shown_; }
    bool allShown() const { return expected_.isEmpty(); }
    // Fails the test for what is missing by now, and forgets it.
    void verify();

  private:
    struct Expected {
        QString title;
        QString text;
        std::optional<BoxAnswer> answer;
        std::function<void()> meanwhile;
        bool matches(const Box& box) const;
    };
    BoxAnswer answer(const Box& box);
    BoxAnswer unexpected(const Box& box);

    QList<Expected> expected_;
    QList<Box> shown_;
    std::function<void()> meanwhile_;
    std::function<BoxAnswer(const Box&)> recorder_;
    BoxScript* outer_;
};

// Called once by every test program: outside a script no box is expected.
void failOnUnexpectedBoxes();
