#include "practice/art/Glyphs.h"

namespace tavrik::practice {

std::vector<Glyph> natureGlyphs() {
    using enum Tone;
    return {
        {"leaf",
         {fill(main, "M 92 6 C 98 52 82 88 44 88 C 20 88 8 70 14 52 C 22 26 58 34 92 6 Z"),
          fill(shade, "M 92 6 C 98 52 82 88 44 88 C 34 88 26 85 20 79 C 36 56 66 50 92 6 Z"),
          line(detail, 5, "M 6 96 C 18 72 42 56 68 38")}},
        {"sun", {line(main, 9, "M 50 4 V 14", 8), fill(main, "O 50 50 25")}},
        {"moon",
         {fill(main, "M 60 6 C 40 14 30 34 36 54 C 42 74 64 84 86 76 C 76 90 62 97 46 95 C 22 92 4 72 6 46 C 8 "
                     "22 32 2 60 6 Z"),
          fill(accent, "M 74 22 L 78 34 L 90 38 L 78 42 L 74 54 L 70 42 L 58 38 L 70 34 Z")}},
        {"weather",
         {line(accent, 6, "M 66 4 V 10 M 92 16 L 88 20 M 98 42 H 92 M 40 16 L 44 20"),
          fill(accent, "O 66 40 23"), fill(main, "O 26 68 20 O 46 54 23 O 70 70 18 R 26 62 44 26 0")}},
        {"flame",
         {fill(main, "M 52 2 C 56 22 84 36 84 64 C 84 84 68 98 50 98 C 32 98 16 84 16 64 C 16 50 24 42 30 32 C "
                     "34 42 38 46 42 46 C 50 "
                     "38 42 20 52 2 Z"),
          fill(accent, "M 52 52 C 54 62 66 68 66 80 C 66 90 59 96 50 96 C 41 96 34 90 34 80 C 34 72 40 70 42 "
                       "64 C 46 66 50 60 52 52 Z")}},
        {"drop",
         {fill(main, "M 50 2 C 62 22 84 42 84 64 C 84 84 68 98 50 98 C 32 98 16 84 16 64 C 16 42 38 22 50 2 Z"),
          line(detail, kMedium, "M 30 66 C 31 76 37 83 46 85")}},
        {"tree",
         {fill(soft, "R 44 72 12 26 4"), solid(main, 6, "M 50 42 L 82 80 H 18 Z"),
          solid(main, 6, "M 50 22 L 76 56 H 24 Z"), solid(main, 6, "M 50 6 L 68 32 H 32 Z"),
          fill(shade, "M 50 3 L 71 34 H 64 L 79 58 H 70 L 85 82 H 50 Z")}},
        {"fish",
         {solid(soft, 4, "M 66 50 L 94 26 L 88 50 L 94 74 Z"),
          fill(main, "M 4 52 C 16 28 34 20 50 22 C 66 24 76 40 80 50 C 76 60 66 78 50 80 C 34 82 16 76 4 52 Z"),
          fill(detail, "O 26 46 5"), line(detail, kFine, "M 40 32 C 48 42 48 60 40 70"),
          fill(accent, "M 44 22 C 52 10 62 10 70 14 C 66 20 66 26 68 32 Z")}},
        {"fox",
         {solid(main, 3, "M 7 6 L 38 28 H 62 L 93 6 L 96 48 L 50 94 L 4 48 Z"),
          solid(detail, 2, "M 5 50 C 20 48 34 56 44 76 L 50 92 Z M 95 50 C 80 48 66 56 56 76 L 50 92 Z"),
          fill(shade, "M 7 6 L 28 22 L 12 34 Z M 93 6 L 72 22 L 88 34 Z"), fill(soft, "O 33 52 5 O 67 52 5"),
          fill(soft, "E 50 90 7.5 6")}},
        {"bird",
         {fill(accent, "M 80 26 L 99 32 L 80 40 Z"), fill(soft, "M 4 74 L 34 58 L 40 76 Z"),
          fill(main, "M 66 14 C 80 14 86 24 86 36 C 86 64 68 84 42 84 C 28 84 18 78 12 70 C 32 70 46 58 48 38 "
                     "C 49 24 55 14 66 14 Z"),
          fill(shade, "M 30 66 C 46 60 54 48 58 40 C 68 54 60 74 30 66 Z"), fill(detail, "O 70 30 5")}},
        {"umbrella",
         {line(main, kMedium, "M 50 8 V 82 C 50 92 34 92 34 82"),
          fill(main, "M 4 52 C 4 26 24 10 50 10 C 76 10 96 26 96 52 C 88 44 76 44 70 52 C 64 44 56 44 50 52 C "
                     "44 44 36 44 30 52 C 24 44 12 44 4 52 Z"),
          fill(accent,
               "M 50 10 C 62 20 70 36 70 52 C 64 44 56 44 50 52 C 44 44 36 44 30 52 C 30 36 38 20 50 10 Z")}},
        {"mountain",
         {fill(accent, "O 76 24 11"), solid(soft, 6, "M 38 86 L 68 42 L 96 86 Z"),
          solid(main, 6, "M 4 86 L 40 20 L 76 86 Z"),
          fill(detail, "M 40 18 L 54 44 L 46 52 L 39 44 L 32 52 L 26 44 Z")}},
        {"flower", {fill(main, "E 50 20 16 20", 6), fill(accent, "O 50 50 15")}},
        {"paw",
         {fill(main, "T -14 E 32 24 10 14"), fill(main, "T 14 E 68 24 10 14"), fill(main, "T -30 E 12 38 9 13"),
          fill(main, "T 30 E 88 38 9 13"),
          fill(main, "M 50 46 C 64 46 80 66 80 78 C 80 90 70 92 62 90 C 54 88 46 88 38 90 C 30 92 20 90 20 78 "
                     "C 20 66 36 46 50 46 Z")}},
    };
}

} // namespace tavrik::practice
