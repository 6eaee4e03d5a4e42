// Pages that show what the plot object draws, on any surface: for the gallery that a person looks
// at, and for tests that measure a printed sheet.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "plot/clsplot1.h"
#include "plot/plot_cfg.h"
#include "plot/print_text.h"
#include "plot/surface.h"

namespace kelvo::testing {

struct GalleryPage {
    const char* name;
    void (*draw)(clsplot1& object, Surface& surface);
};

// Figures, fills, symbols, grids and texts, each on a page of 160 x 160 mm with y upward.
[[nodiscard]] std::array<GalleryPage, 6> galleryPages();

// Draws the page with a plot object of its own.
void drawGalleryPage(const GalleryPage& page, SurfaceKind kind, Surface& surface);

// A whole plot of a few points; the scale is automatic unless `manual`.
void drawSamplePlot(SurfaceKind kind, Surface& surface, PointPlot plotKind, bool manual);

// Prints `text` as a file of the given name in the user mode.
void printSampleText(Surface& printer, const std::string& name, const std::string& text,
                     const PrintMode& mode);

}  // namespace kelvo::testing
