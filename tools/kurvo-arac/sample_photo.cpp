#include "sample_photo.h"

#include "platform/paths.h"
#include "platform/refusal.h"
#include "random.h"

#include <QImage>

#include <array>

namespace sample {
namespace {

constexpr int width = 72, height = 92;
enum Ink : unsigned char { ground, hair, skin, clothes, dark };

constexpr std::array<QRgb, 4> grounds{0xffd9e2ea, 0xffe8e2d4, 0xffcfd8d0, 0xffdcd3df};
constexpr std::array<QRgb, 4> hairs{0xff2b1d14, 0xff4a3222, 0xff15110f, 0xff7a5533};
constexpr std::array<QRgb, 3> skins{0xffe7bf9f, 0xffd3a27c, 0xfff0cfb4};
constexpr std::array<QRgb, 4> coats{0xff27496b, 0xff6b2737, 0xff355e3b, 0xff555566};

template <std::size_t size>
QRgb pick(const std::array<QRgb, size>& colours, Random& random) {
    return colours[static_cast<std::size_t>(random.below(static_cast<int>(size)))];
}

bool inside(int x, int y, int centre_x, int centre_y, int radius_x, int radius_y) {
    const int across = (x - centre_x) * radius_y;
    const int down = (y - centre_y) * radius_x;
    return across * across + down * down <= radius_x * radius_x * radius_y * radius_y;
}

struct Face {
    int half_width, half_height;
    bool long_hair;
};

Ink ink_at(int x, int y, const Face& face) {
    const int middle = width / 2, eyes = 40;
    if (inside(x, y, middle - 6, eyes, 2, 2) || inside(x, y, middle + 6, eyes, 2, 2)) return dark;
    if (y == eyes + 12 && std::abs(x - middle) <= 4) return dark;
    if (y > eyes - 10 && inside(x, y, middle, eyes + 2, face.half_width, face.half_height)) return skin;
    const int hair_end = face.long_hair ? eyes + 24 : eyes + 2;
    if (y < hair_end && inside(x, y, middle, eyes, face.half_width + 4, face.half_height + 6)) return hair;
    if (std::abs(x - middle) < 6 && y > eyes && y < eyes + 30) return skin;
    return inside(x, y, middle, height + 4, 32, 28) ? clothes : ground;
}

}  // namespace

void draw_photo(const QString& path, bool long_hair, Random random) {
    QImage image(width, height, QImage::Format_Indexed8);
    image.setColorTable(
        {pick(grounds, random), pick(hairs, random), pick(skins, random), pick(coats, random), 0xff201814U});
    const Face face{random.between(14, 17), random.between(19, 22), long_hair};
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) image.setPixel(x, y, ink_at(x, y, face));
    if (!image.save(paths::native(path), "BMP")) refuse(QStringLiteral("Fotoğraf yazılamadı: %1").arg(path));
}

}  // namespace sample
