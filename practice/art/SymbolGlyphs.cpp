#include "practice/art/Glyphs.h"

namespace tavrik::practice {

std::vector<Glyph> symbolGlyphs() {
    using enum Tone;
    return {
        {"heart",
         {fill(main, "M 50 92 C 20 70 3 52 3 32 C 3 17 14 7 27 7 C 37 7 45 12 50 21 C 55 12 63 7 73 7 C 86 7 "
                     "97 17 97 32 C 97 52 80 70 50 92 Z"),
          line(detail, 5, "M 15 34 C 15 26 20 20 27 19")}},
        {"star",
         {solid(main, 6, "M 50 6 L 63 36 L 95 39 L 71 61 L 78 92 L 50 76 L 22 92 L 29 61 L 5 39 L 37 36 Z")}},
        {"download",
         {line(main, 9, "M 50 8 V 62 M 28 42 L 50 64 L 72 42"),
          line(main, 9, "M 10 70 V 80 C 10 87 14 91 21 91 H 79 C 86 91 90 87 90 80 V 70")}},
        {"layers",
         {solid(soft, 5, "M 50 44 L 92 68 L 50 92 L 8 68 Z"),
          solid(accent, 5, "M 50 26 L 92 50 L 50 74 L 8 50 Z"),
          solid(main, 5, "M 50 8 L 92 32 L 50 56 L 8 32 Z")}},
        {"infinity",
         {line(main, 11,
               "M 50 50 C 40 34 32 28 24 28 C 12 28 5 38 5 50 C 5 62 12 72 24 72 C 32 72 40 66 50 50 C 60 34 "
               "68 28 76 28 C 88 28 95 "
               "38 95 50 C 95 62 88 72 76 72 C 68 72 60 66 50 50")}},
        {"sparkle",
         {fill(main,
               "M 42 14 C 46 42 54 50 82 54 C 54 58 46 66 42 94 C 38 66 30 58 2 54 C 30 50 38 42 42 14 Z"),
          fill(accent,
               "M 80 4 C 82 16 86 20 98 22 C 86 24 82 28 80 40 C 78 28 74 24 62 22 C 74 20 78 16 80 4 Z")}},
        {"sliders",
         {line(soft, kMedium, "M 8 22 H 92 M 8 50 H 92 M 8 78 H 92"), fill(main, "O 66 22 12 O 32 50 12"),
          fill(accent, "O 58 78 12")}},
        {"grid",
         {fill(main, "R 6 6 40 40 10 R 54 6 40 40 10 R 6 54 40 40 10"), fill(accent, "R 54 54 40 40 10")}},
        {"question",
         {line(main, 12, "M 27 31 C 27 17 37 8 50 8 C 63 8 73 17 73 29 C 73 45 50 45 50 63"),
          fill(main, "O 50 86 8.5")}},
        {"trash",
         {fill(main, "M 18 26 H 82 L 76 86 C 75 93 71 97 64 97 H 36 C 29 97 25 93 24 86 Z"),
          fill(soft, "R 10 14 80 12 6"),
          line(soft, kMedium, "M 38 14 V 9 C 38 6 40 4 43 4 H 57 C 60 4 62 6 62 9 V 14"),
          line(detail, 5, "M 38 40 L 40 82 M 50 40 V 82 M 62 40 L 60 82")}},
        {"application-sheet",
         {fill(main,
               "M 22 2 H 62 L 88 28 V 86 C 88 94 83 99 75 99 H 22 C 14 99 9 94 9 86 V 15 C 9 7 14 2 22 2 Z"),
          fill(soft, "M 62 2 L 88 28 H 70 C 65 28 62 25 62 20 Z"),
          fill(soft, "R 28 46 17 17 5 R 52 46 17 17 5 R 28 70 17 17 5"), fill(accent, "R 52 70 17 17 5")}},
    };
}

} // namespace tavrik::practice
