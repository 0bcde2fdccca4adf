#pragma once
// Pieces shared by the contact-sheet programs (the widget gallery and the
// screen gallery): grab a widget as shown, lay grabs out on a titled sheet,
// save a sheet under the output folder.

#include <QColor>
#include <QImage>
#include <QString>
#include <QWidget>

#include <vector>

namespace gallery {

// Where save() writes; set by main().
extern QString g_out;

// The first child that takes focus by Tab (or `w` itself).
QWidget* firstFocusable(QWidget* w);

// Shows `w` at its size hint, lets it lay out and paint, grabs it and hides
// it again. `focus` gives the first focusable child the focus, `hover` marks
// it as under the mouse.
QImage grabWidget(QWidget* w, bool focus = false, bool hover = false);

// Grabs `w` as it is on screen now (shown and laid out by the caller). Every
// grab first checks that each widget shown inside `w` is held by its
// parent's layout (overlays centred over their parent, such as sheets and
// masks, excepted): a widget left out sits in its parent's top-left corner
// over whatever is there. Each one found is a "layout:" line on stderr and
// counts in layoutFaults(), for the exit status.
QImage grabShown(QWidget* w);
int layoutFaults();

template <typename T>
T* find(QWidget* w) {
  if (auto* self = qobject_cast<T*>(w)) return self;
  return w->findChild<T*>();
}

struct Cell {
  QString caption;
  QImage image;
};

// Rows of captioned grabs on a sheet with a title. Cells are at least
// `minCell` wide.
QImage sheet(const QString& title, const std::vector<std::vector<Cell>>& rows, const QColor& bg = Qt::white,
             int minCell = 0);

// Writes g_out/name and prints its path (or the failure on stderr).
void save(const QImage& img, const QString& name);

}  // namespace gallery
