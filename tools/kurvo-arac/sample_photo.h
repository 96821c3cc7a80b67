// Small portraits drawn by rule, for students who have never sat before a camera.
#pragma once

#include <QString>

namespace sample {

class Random;

// Writes a bitmap of a few thousand bytes. `path` as in platform/paths.h, its folder must exist.
void draw_photo(const QString& path, bool long_hair, Random random);

}  // namespace sample
