#pragma once
// The agent's plain message boxes (the log-out question, the exit notice):
// their text broken into lines that fit a width, and the box finished so
// that it sizes itself from those lines.

#include <QFont>
#include <QString>
#include <QStringList>

class QMessageBox;

namespace notice_box {

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
