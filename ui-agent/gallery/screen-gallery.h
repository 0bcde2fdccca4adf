#pragma once
// The screen gallery's registry. An area's file renders its screens in each
// state and saves contact sheets with gallery::save():
//
//   namespace { void renderTray() { ... gallery::save(img, "tray-status.png"); } }
//   NIMBRA_GALLERY_AREA("tray", renderTray)
//
// main() sets the scale (NIMBRA_UI_SCALE, so DPIinfo::getDPI() answers it),
// the language (translator and font) and the output folder
// <out>/<language>/<scale>x/ before any area runs.

#include <QString>

#include "widgets/gallery/gallery-kit.h"

namespace screen_gallery {

using RenderFn = void (*)();
// Registers an area; returns a dummy so it can run at static initialisation.
int add_area(const char* name, RenderFn render);

// The scale factor and the three-letter language ("eng" for English) of
// this run.
double scale();
QString language();

}  // namespace screen_gallery

#define NIMBRA_GALLERY_AREA(name, fn) \
  static const int nimbra_gallery_area_##fn = screen_gallery::add_area(name, fn);
