#include "fonts/StyledAlphabets.h"

namespace tavrik {

namespace {

using Exception = StyledAlphabet::Exception;

// The mathematical block leaves gaps where a letter had its place in Unicode before.
constexpr Exception italic[] = {{'h', 0x210E}};
constexpr Exception script[] = {{'e', 0x212F}, {'g', 0x210A}, {'o', 0x2134}, {'B', 0x212C},
                                {'E', 0x2130}, {'F', 0x2131}, {'H', 0x210B}, {'I', 0x2110},
                                {'L', 0x2112}, {'M', 0x2133}, {'R', 0x211B}};
constexpr Exception fraktur[] = {{'C', 0x212D}, {'H', 0x210C}, {'I', 0x2111}, {'R', 0x211C}, {'Z', 0x2128}};
constexpr Exception doubleStruck[] = {{'C', 0x2102}, {'H', 0x210D}, {'N', 0x2115}, {'P', 0x2119},
                                      {'Q', 0x211A}, {'R', 0x211D}, {'Z', 0x2124}};

// The circled digits begin with one; zero came later.
constexpr Exception circled[] = {{'0', 0x24EA}};
constexpr Exception negativeCircled[] = {{'0', 0x24FF}};

// Phonetic letters from several blocks. There is no small capital for s and x, whose plain letters look alike,
// and hardly a font has the one for q: the Greek archaic koppa stands in.
constexpr Exception smallCaps[] = {
    {'a', 0x1D00}, {'b', 0x0299}, {'c', 0x1D04}, {'d', 0x1D05}, {'e', 0x1D07}, {'f', 0xA730}, {'g', 0x0262},
    {'h', 0x029C}, {'i', 0x026A}, {'j', 0x1D0A}, {'k', 0x1D0B}, {'l', 0x029F}, {'m', 0x1D0D}, {'n', 0x0274},
    {'o', 0x1D0F}, {'p', 0x1D18}, {'q', 0x03D9}, {'r', 0x0280}, {'s', U's'},   {'t', 0x1D1B}, {'u', 0x1D1C},
    {'v', 0x1D20}, {'w', 0x1D21}, {'x', U'x'},   {'y', 0x028F}, {'z', 0x1D22}};

constexpr StyledAlphabet alphabets[] = {
    {.name = "Mathematical Bold", .small = 0x1D41A, .capital = 0x1D400, .zero = 0x1D7CE},
    {.name = "Mathematical Italic", .small = 0x1D44E, .capital = 0x1D434, .exceptions = italic},
    {.name = "Mathematical Bold Italic", .small = 0x1D482, .capital = 0x1D468},
    {.name = "Mathematical Script", .small = 0x1D4B6, .capital = 0x1D49C, .exceptions = script},
    {.name = "Mathematical Bold Script", .small = 0x1D4EA, .capital = 0x1D4D0},
    {.name = "Mathematical Fraktur", .small = 0x1D51E, .capital = 0x1D504, .exceptions = fraktur},
    {.name = "Mathematical Bold Fraktur", .small = 0x1D586, .capital = 0x1D56C},
    {.name = "Mathematical Double-Struck",
     .small = 0x1D552,
     .capital = 0x1D538,
     .zero = 0x1D7D8,
     .exceptions = doubleStruck},
    {.name = "Mathematical Sans-Serif", .small = 0x1D5BA, .capital = 0x1D5A0, .zero = 0x1D7E2},
    {.name = "Mathematical Sans-Serif Bold", .small = 0x1D5EE, .capital = 0x1D5D4, .zero = 0x1D7EC},
    {.name = "Mathematical Sans-Serif Italic", .small = 0x1D622, .capital = 0x1D608},
    {.name = "Mathematical Sans-Serif Bold Italic", .small = 0x1D656, .capital = 0x1D63C},
    {.name = "Mathematical Monospace", .small = 0x1D68A, .capital = 0x1D670, .zero = 0x1D7F6},
    {.name = "Circled",
     .small = 0x24D0,
     .capital = 0x24B6,
     .zero = 0x245F,
     .exceptions = circled,
     .multiCase = false},
    {.name = "Negative Circled",
     .small = 0x1F150,
     .capital = 0x1F150,
     .zero = 0x2775,
     .exceptions = negativeCircled,
     .multiCase = false},
    {.name = "Parenthesized", .small = 0x249C, .capital = 0x249C, .multiCase = false},
    {.name = "Squared", .small = 0x1F130, .capital = 0x1F130, .multiCase = false},
    {.name = "Negative Squared", .small = 0x1F170, .capital = 0x1F170, .multiCase = false},
    {.name = "Fullwidth", .small = 0xFF41, .capital = 0xFF21, .zero = 0xFF10},
    {.name = "Small Caps", .exceptions = smallCaps, .multiCase = false},
};

} // namespace

std::span<const StyledAlphabet> styledAlphabets() {
    return alphabets;
}

} // namespace tavrik
