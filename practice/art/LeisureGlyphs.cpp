#include "practice/art/Glyphs.h"

namespace tavrik::practice {

std::vector<Glyph> leisureGlyphs() {
    using enum Tone;
    return {
        {"gamepad",
         {fill(main, "M 28 22 H 72 C 88 22 94 40 98 66 C 99 78 92 84 84 82 C 76 80 74 68 66 68 H 34 C 26 68 24 "
                     "80 16 82 C 8 84 1 78 2 66 C 6 "
                     "40 12 22 28 22 Z"),
          line(detail, 7, "M 20 45 H 38 M 29 36 V 54"), fill(accent, "O 66 51 6"), fill(detail, "O 78 39 6")}},
        {"dice",
         {fill(main, "T -8 R 10 10 80 80 17"), fill(detail, "T -8 O 30 30 8 O 70 30 8 O 30 70 8 O 70 70 8"),
          fill(accent, "O 50 50 8")}},
        {"chess-knight",
         {fill(main, "M 34 4 L 44 14 C 70 16 84 36 82 62 C 82 68 80 72 78 76 H 28 C 28 62 40 56 48 46 C 42 48 "
                     "36 48 32 52 C 28 56 24 62 18 60 C "
                     "10 58 8 50 11 45 C 16 36 22 28 26 20 C 29 15 31 10 34 4 Z"),
          fill(detail, "O 39 27 4.5"), fill(main, "R 18 82 66 14 6"),
          line(detail, kFine, "M 62 26 C 70 36 72 48 71 62")}},
        {"cup",
         {line(main, 7, "M 74 44 H 80 C 90 44 95 50 95 58 C 95 66 90 72 80 72 H 72"),
          fill(main, "M 10 36 H 78 V 66 C 78 82 68 92 54 92 H 34 C 20 92 10 82 10 66 Z"),
          line(accent, 5, "M 30 26 C 26 20 34 16 30 8 M 46 26 C 42 20 50 16 46 8 M 62 26 C 58 20 66 16 62 8")}},
        {"jar",
         {fill(main, "M 26 22 H 74 C 84 28 90 36 90 48 V 80 C 90 91 84 97 74 97 H 26 C 16 97 10 91 10 80 V 48 "
                     "C 10 36 16 28 26 22 Z"),
          fill(accent, "M 18 54 C 30 48 40 60 52 55 C 64 50 72 52 82 56 V 79 C 82 86 79 89 73 89 H 27 C 21 89 "
                       "18 86 18 79 Z"),
          fill(soft, "R 20 3 60 18 6"), fill(shine, "R 22 40 7 34 3.5"), fill(shade, "R 20 14 60 7 3")}},
        {"gift",
         {line(accent, 6,
               "M 50 30 C 34 30 24 22 28 12 C 34 2 48 12 50 30 C 52 12 66 2 72 12 C 76 22 66 30 50 30"),
          fill(main, "R 12 44 76 52 9"), fill(soft, "R 5 28 90 22 7"),
          fill(accent, "M 42 28 H 58 V 96 H 42 Z")}},
        {"trophy",
         {line(main, kMedium, "M 24 16 H 6 C 6 34 14 44 28 46 M 76 16 H 94 C 94 34 86 44 72 46"),
          fill(main, "M 22 5 H 78 V 32 C 78 52 66 64 50 64 C 34 64 22 52 22 32 Z"),
          fill(shade, "M 50 5 H 78 V 32 C 78 52 66 64 50 64 Z"), fill(main, "M 44 60 H 56 V 78 H 44 Z"),
          fill(soft, "R 26 78 48 18 6"),
          fill(accent, "M 50 16 L 54 27 L 66 27 L 57 34 L 60 46 L 50 39 L 40 46 L 43 34 L 34 27 L 46 27 Z")}},
        {"cube",
         {solid(main, 5, "M 50 5 L 90 27 L 50 49 L 10 27 Z"), solid(soft, 5, "M 10 27 L 50 49 V 95 L 10 72 Z"),
          solid(soft, 5, "M 90 27 L 50 49 V 95 L 90 72 Z"), fill(shade, "M 92 25 L 50 48 V 97 L 92 74 Z"),
          line(main, 3, "M 50 50 V 94 M 11 28 L 50 49.5 L 89 28")}},
        {"target",
         {fill(main, "O 50 50 47"), fill(detail, "O 50 50 35"), fill(main, "O 50 50 23"),
          fill(accent, "O 50 50 11")}},
        {"cards",
         {fill(soft, "T -14 R 8 12 52 76 9"), fill(main, "T 10 R 34 12 54 78 9"),
          fill(accent, "T 10 M 61 30 C 66 40 76 44 76 54 C 76 62 66 64 62 58 L 66 70 H 56 L 60 58 C 56 64 46 "
                       "62 46 54 C 46 44 56 40 61 30 Z")}},
        {"kite",
         {line(main, 4, "M 46 72 C 40 82 26 76 22 86 C 19 93 12 96 6 94"),
          fill(accent, "M 36 74 L 44 86 L 30 84 Z M 22 78 L 28 92 L 14 90 Z"),
          solid(main, 4, "M 92 6 L 84 56 L 45 74 L 36 20 Z"), fill(soft, "M 92 6 L 45 74 L 36 20 Z"),
          fill(shade, "M 92 6 L 84 56 L 45 74 Z"), line(detail, 3, "M 92 6 L 45 74 M 36 20 L 84 56")}},
        {"dumbbell",
         {line(main, 9, "M 30 50 H 70"), fill(main, "R 16 18 18 64 8 R 66 18 18 64 8"),
          fill(soft, "R 2 32 14 36 6 R 84 32 14 36 6")}},
        {"fork-knife",
         {line(main, 7, "M 28 50 V 94 M 12 8 V 30 C 12 42 18 50 28 50 C 38 50 44 42 44 30 V 8 M 28 8 V 34"),
          line(main, 7, "M 74 62 V 94"), solid(main, 7, "M 74 62 H 62 C 60 34 64 14 74 8 Z")}},
        {"theatre",
         {fill(soft, "T 8 M 44 26 C 60 34 78 34 96 26 V 58 C 96 76 86 88 70 92 C 54 88 44 76 44 58 Z"),
          fill(main, "T -6 M 4 8 C 22 16 44 16 62 8 V 42 C 62 62 50 74 33 80 C 16 74 4 62 4 42 Z"),
          fill(detail, "T -6 E 22 34 6 5 E 44 34 6 5"),
          fill(detail, "T -6 M 18 50 C 28 56 38 56 48 50 C 46 62 40 66 33 66 C 26 66 20 62 18 50 Z")}},
        {"crown",
         {solid(main, 5, "M 10 30 L 31 52 L 50 18 L 69 52 L 90 30 L 82 80 H 18 Z"),
          fill(accent, "O 50 13 8 O 8 25 7 O 92 25 7"), line(detail, kMedium, "M 24 70 H 76")}},
    };
}

} // namespace tavrik::practice
