// The pictures of section headers, as XPM text. Rows and colours stand apart, so that the same picture can be had for
// light and for dark palettes.
#pragma once

namespace sectionXpm {

// clang-format off
constexpr const char* lightColors[] = {
    "  c None",
    ". c #aab6c5",
    "# c #4a5a70",
    "a c #f1f4f8",
    "b c #eff2f7",
    "c c #edf1f6",
    "d c #ebeff4",
    "e c #e9edf3",
    "f c #e7ecf2",
    "g c #e5eaf1",
    "h c #e3e8f0",
    "i c #e1e7ee",
    "j c #dfe5ed",
    "k c #dde4ec",
    "l c #dbe2eb",
    "m c #d9e0e9",
    "n c #d7dfe8",
    "o c #d5dde7",
};

constexpr const char* darkColors[] = {
    "  c None",
    ". c #2a2f35",
    "# c #d7dde5",
    "a c #4a5159",
    "b c #495058",
    "c c #484f57",
    "d c #474e56",
    "e c #464c54",
    "f c #454b53",
    "g c #444a52",
    "h c #424951",
    "i c #414850",
    "j c #40474f",
    "k c #3f464e",
    "l c #3e444c",
    "m c #3d434b",
    "n c #3c424a",
    "o c #3b4149",
};

constexpr const char* leftOpen[] = {
    "   ..................",
    " ..aaaaaaaaaaaaaaaaaa",
    " .bbbbbbbbbbbbbbbbbbb",
    ".cccccccccccccccccccc",
    ".dddddddddddddddddddd",
    ".eeeeeeeeeeeeeeeeeeee",
    ".ffffff#########fffff",
    ".ggggggg#######gggggg",
    ".hhhhhhhh#####hhhhhhh",
    ".iiiiiiiii###iiiiiiii",
    ".jjjjjjjjjj#jjjjjjjjj",
    ".kkkkkkkkkkkkkkkkkkkk",
    ".llllllllllllllllllll",
    ".mmmmmmmmmmmmmmmmmmmm",
    " .nnnnnnnnnnnnnnnnnnn",
    " ..oooooooooooooooooo",
    "   ..................",
};

constexpr const char* leftClosed[] = {
    "   ..................",
    " ..aaaaaaaaaaaaaaaaaa",
    " .bbbbbbbbbbbbbbbbbbb",
    ".cccccccccccccccccccc",
    ".dddddddd#ddddddddddd",
    ".eeeeeeee##eeeeeeeeee",
    ".ffffffff###fffffffff",
    ".gggggggg####gggggggg",
    ".hhhhhhhh#####hhhhhhh",
    ".iiiiiiii####iiiiiiii",
    ".jjjjjjjj###jjjjjjjjj",
    ".kkkkkkkk##kkkkkkkkkk",
    ".llllllll#lllllllllll",
    ".mmmmmmmmmmmmmmmmmmmm",
    " .nnnnnnnnnnnnnnnnnnn",
    " ..oooooooooooooooooo",
    "   ..................",
};

constexpr const char* center[] = {
    ".......................................................................................................................................",
    "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa",
    "bbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbb",
    "ccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccccc",
    "ddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddddd",
    "eeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeeee",
    "fffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffffff",
    "ggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggggg",
    "hhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhh",
    "iiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiii",
    "jjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjjj",
    "kkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkk",
    "lllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllllll",
    "mmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmm",
    "nnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnn",
    "ooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooooo",
    ".......................................................................................................................................",
};

constexpr const char* right[] = {
    "...............   ",
    "aaaaaaaaaaaaaaa.. ",
    "bbbbbbbbbbbbbbbb. ",
    "ccccccccccccccccc.",
    "ddddddddddddddddd.",
    "eeeeeeeeeeeeeeeee.",
    "fffffffffffffffff.",
    "ggggggggggggggggg.",
    "hhhhhhhhhhhhhhhhh.",
    "iiiiiiiiiiiiiiiii.",
    "jjjjjjjjjjjjjjjjj.",
    "kkkkkkkkkkkkkkkkk.",
    "lllllllllllllllll.",
    "mmmmmmmmmmmmmmmmm.",
    "nnnnnnnnnnnnnnnn. ",
    "ooooooooooooooo.. ",
    "...............   ",
};

// clang-format on

} // namespace sectionXpm
