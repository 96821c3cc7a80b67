// Where finished papers go: a printer or a PDF file.
#pragma once

#include "platform/print_surface.h"

namespace paper_output {

// Renders the document and sends it. Returns the native path of the PDF, empty for a printer. Throws
// std::runtime_error in Turkish; no half file is left.
QString send(const PrintSurface::Document& document, PaperFonts& fonts);

}  // namespace paper_output
