#include "practice/art/Glyphs.h"

namespace tavrik::practice {

std::vector<Glyph> mediaGlyphs() {
    using enum Tone;
    return {
        {"music",
         {line(main, 7, "M 36 76 V 24 M 86 66 V 14"), solid(main, 4, "M 35 18 L 87 8 V 24 L 35 34 Z"),
          fill(main, "T -18 E 25 66 16 12"), fill(main, "T -18 E 75 73 16 12")}},
        {"film",
         {fill(main, "R 4 12 92 76 10"), fill(detail, "R 27 20 46 60 4"),
          fill(detail, "R 11 20 9 10 3 R 11 37 9 10 3 R 11 54 9 10 3 R 11 71 9 10 3 R 80 20 9 10 3 R 80 37 9 "
                       "10 3 R 80 54 9 "
                       "10 3 R 80 71 9 10 3"),
          solid(main, 5, "M 43 39 L 61 50 L 43 61 Z")}},
        {"clapper",
         {fill(main, "R 6 42 88 50 9"), fill(soft, "T -12 R 4 18 88 18 5"),
          fill(detail,
               "T -12 M 12 18 H 26 L 18 36 H 4 Z M 42 18 H 56 L 48 36 H 34 Z M 72 18 H 86 L 78 36 H 64 Z"),
          solid(accent, 4, "M 43 56 L 62 67 L 43 78 Z")}},
        {"camera",
         {solid(main, 6, "M 32 28 L 38 17 H 62 L 68 28 Z"), fill(main, "R 3 25 94 62 13"),
          fill(detail, "O 50 56 23"), fill(main, "O 50 56 17"), fill(detail, "O 50 56 12"),
          fill(shine, "A 50 56 12 45 180 Z"), fill(accent, "O 82 38 5")}},
        {"headphones",
         {line(main, kBold, "M 14 66 V 52 C 14 30 30 14 50 14 C 70 14 86 30 86 52 V 66"),
          fill(main, "R 6 52 23 38 10"), fill(main, "R 71 52 23 38 10"),
          fill(shade, "R 20 52 9 38 4 R 71 52 9 38 4")}},
        {"photo",
         {fill(main, "R 3 11 94 78 11"), fill(detail, "R 11 19 78 62 5"),
          fill(soft, "M 40 76 L 66 44 L 89 70 V 76 C 89 79 87 81 84 81 H 36 Z"),
          fill(main, "M 11 70 L 34 42 L 66 81 H 16 C 13 81 11 79 11 76 Z"), fill(accent, "O 70 34 8")}},
        {"record",
         {fill(main, "O 50 50 47"), line(shade, 2, "O 50 50 40 O 50 50 34 O 50 50 28"),
          fill(shine, "M 50 50 L 26 10 A 50 50 46 120 -30 L 50 50 Z"), fill(accent, "O 50 50 19"),
          fill(main, "O 50 50 5")}},
        {"play", {solid(main, 14, "M 28 18 L 82 50 L 28 82 Z")}},
        {"radio",
         {line(main, 5, "M 26 32 L 72 8"), fill(main, "R 4 30 92 60 12"), fill(detail, "O 32 60 19"),
          fill(main, "O 32 60 13"), fill(detail, "O 32 60 8"), line(detail, 5, "M 62 46 H 84 M 62 57 H 84"),
          fill(accent, "O 66 74 6"), fill(detail, "O 81 74 6")}},
        {"paint-brush",
         {fill(soft, "T 42 R 43 -8 14 62 7"), fill(shade, "T 42 R 50 -8 7 62 3"),
          fill(main, "T 42 R 39 48 22 14 3"),
          fill(accent, "T 42 M 39 62 H 61 C 66 76 62 92 46 104 C 48 92 34 82 39 62 Z")}},
        {"palette",
         {fill(main, "M 50 6 C 76 6 97 23 97 46 C 97 62 84 66 72 64 C 62 62 56 68 60 77 C 65 88 60 94 50 94 C "
                     "24 94 3 75 3 "
                     "50 C 3 25 24 6 50 6 Z"),
          fill(accent, "O 28 34 8"), fill(detail, "O 52 24 8"), fill(soft, "O 75 36 8"),
          fill(shade, "O 24 58 8")}},
        {"waveform",
         {line(main, kBold, "M 8 44 V 56 M 25 30 V 70 M 42 10 V 90 M 75 34 V 66 M 92 44 V 56"),
          line(accent, kBold, "M 58 24 V 76")}},
        {"television",
         {line(main, kMedium, "M 30 92 H 70 M 34 4 L 50 20 L 66 4"), fill(main, "R 3 18 94 66 12"),
          fill(detail, "R 11 26 60 50 7"),
          fill(shine, "M 16 26 H 44 L 24 76 H 16 C 13 76 11 74 11 71 V 31 C 11 28 13 26 16 26 Z"),
          fill(accent, "O 84 36 5"), fill(detail, "O 84 52 5")}},
        {"guitar",
         {line(soft, 7, "T 45 M 50 -6 V 50"), solid(soft, 4, "T 45 M 45 -14 H 55 V 2 H 45 Z"),
          fill(main, "T 45 M 50 34 C 64 34 68 42 66 50 C 65 56 74 60 75 76 C 76 92 66 100 50 100 C 34 100 24 "
                     "92 25 76 C 26 60 "
                     "35 56 34 50 C 32 42 36 34 50 34 Z"),
          fill(detail, "T 45 O 50 62 9"), line(detail, 5, "T 45 M 42 84 H 58")}},
    };
}

} // namespace tavrik::practice
