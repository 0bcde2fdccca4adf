#pragma once
// The agent's plain message boxes (the log-out question, the exit notice):
// how each is built, how it is run, their text broken into lines that fit
// a width, and the box finished so that it sizes itself from those lines.

#include <QFont>
#include <QMessageBox>
#include <QString>
#include <QStringList>

#include <memory>

namespace notice_box {

// The log-out question (object name "LogoutConfirm"): a Cancel button, the
// default and the Escape button, and an "OK" button of the Apply role.
std::unique_ptr<QMessageBox> logout_question();
// The notice that closing the agent leaves the backup service running
// (object name "ExitNotice"), with one OK button.
std::unique_ptr<QMessageBox> exit_notice();

// Runs `box` modally and returns the role of the button that closed it
// (RejectRole for the Escape button, InvalidRole when none did).
QMessageBox::ButtonRole ask(QMessageBox& box);
// A test hook, as VellMessageSheet::setNextAnswer: the next ask() returns
// `role` at once without showing its box; called again before that, the
// roles are taken in the order given.
void setNextAnswer(QMessageBox::ButtonRole role);
// Drops the roles no ask() has taken yet and tells how many there were.
int clearNextAnswers();

// The widest a box's text runs before it breaks into lines, in logical pixels.
constexpr int kTextWidth = 420;

// `text` in lines no wider than `width` in `font`, broken where the writing
// system allows (between words, or between characters in scripts without
// spaces); a word wider than `width` stays whole on a line of its own.
// Breaks already in the text are kept.
QStringList wrap_lines(const QString& text, const QFont& font, int width);

// After the texts, style sheets and buttons are set: the label's text in
// lines of at most kTextWidth (scaled) measured in the style sheet's font,
// the label at least as wide as its widest line, and buttons without the
// icons a desktop theme gives the standard ones.
//
// (QMessageBox wraps its text only when the text is wider than about half
// the screen, up to 500 pixels; a narrower box would cut a long line off.)
void finish(QMessageBox& box);

}  // namespace notice_box
