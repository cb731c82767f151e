#include "ui/table_schemes.h"

#include <array>

namespace {

// Each print colour stands clear of its felt; the accents keep the reds a
// layout is known by wherever they still read.
TableScheme Scheme(const char* name, QRgb felt, QRgb shade, QRgb print, QRgb accent, QRgb field, QRgb rail) {
  return {name, {QColor(felt), QColor(shade), QColor(print), QColor(accent), QColor(field), QColor(rail)}};
}

// felt, felt shade, print, accent, Field numbers, rail.
const std::array<TableScheme, 8> kSchemes = {
    Scheme("Casino green", 0x1d6e3b, 0x0c3f20, 0xf3edd6, 0xd82b24, 0xf5d03c, 0x5b331b),
    Scheme("Tournament blue", 0x1f4e8c, 0x0e274d, 0xf2f2ec, 0xe03a2f, 0xffd44a, 0x2b2b30),
    Scheme("Burgundy", 0x7a1f2b, 0x430d15, 0xf4e9d2, 0xe8b03a, 0xf6d96b, 0x3e2416),
    Scheme("Charcoal", 0x3a3d40, 0x1c1e20, 0xe8e8e2, 0xd0362c, 0xf2c93e, 0x161618),
    Scheme("Royal purple", 0x4b2a72, 0x261240, 0xf1eaf7, 0xe8b83c, 0xf7d85a, 0x2a1c14),
    Scheme("Ocean teal", 0x136f73, 0x073c40, 0xf0f5ef, 0xe04b36, 0xf9d54c, 0x4a301e),
    Scheme("Desert sand", 0xc9a86a, 0x96763f, 0x3b2412, 0x9e1f1a, 0x6e1e0e, 0x5b331b),
    Scheme("Midnight gold", 0x141c2e, 0x070b16, 0xe6c66e, 0xc73a32, 0xf3df9a, 0x3a2a18),
};

// The classic console table, in its order.
const std::array<NamedColour, kPaletteColours> kPalette = {{
    {"Black", {0x00, 0x00, 0x00}},
    {"Dark blue", {0x00, 0x00, 0x80}},
    {"Dark green", {0x00, 0x80, 0x00}},
    {"Dark cyan", {0x00, 0x80, 0x80}},
    {"Dark red", {0x80, 0x00, 0x00}},
    {"Dark magenta", {0x80, 0x00, 0x80}},
    {"Brown", {0x80, 0x80, 0x00}},
    {"Light grey", {0xc0, 0xc0, 0xc0}},
    {"Grey", {0x80, 0x80, 0x80}},
    {"Blue", {0x00, 0x00, 0xff}},
    {"Green", {0x00, 0xff, 0x00}},
    {"Cyan", {0x00, 0xff, 0xff}},
    {"Red", {0xff, 0x00, 0x00}},
    {"Magenta", {0xff, 0x00, 0xff}},
    {"Yellow", {0xff, 0xff, 0x00}},
    {"White", {0xff, 0xff, 0xff}},
}};

}  // namespace

std::span<const TableScheme> TableSchemes() { return kSchemes; }

LayoutColours SchemeColours(int index) {
  return index >= 0 && index < static_cast<int>(kSchemes.size()) ? kSchemes[static_cast<size_t>(index)].colours
                                                                 : kSchemes[0].colours;
}

std::span<const NamedColour> PaletteColours() { return kPalette; }

QColor PaletteColour(int index) {
  return index >= 0 && index < kPaletteColours ? kPalette[static_cast<size_t>(index)].colour : kPalette[0].colour;
}
