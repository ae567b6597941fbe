#include "practice/art/Glyphs.h"

namespace tavrik::practice {

std::vector<Glyph> talkGlyphs() {
    using enum Tone;
    return {
        {"envelope",
         {fill(main, "R 3 17 94 66 11"), line(detail, kFine, "M 8 78 L 36 52 M 92 78 L 64 52"),
          line(detail, 5, "M 8 25 L 43 54 C 47 58 53 58 57 54 L 92 25")}},
        {"chat",
         {fill(
              main,
              "M 50 10 C 77 10 97 26 97 47 C 97 68 77 84 50 84 C 44 84 39 83 34 82 C 28 87 20 91 10 91 C 15 86 "
              "17 80 17 74 C 8 67 3 58 3 47 C 3 26 23 10 50 10 Z"),
          fill(detail, "O 29 47 6.5 O 50 47 6.5 O 71 47 6.5")}},
        {"chat-pair",
         {fill(soft, "R 3 8 66 50 16"), fill(soft, "M 14 52 L 12 74 L 34 56 Z"), fill(main, "R 29 34 68 50 16"),
          fill(main, "M 86 78 L 90 98 L 64 82 Z"), line(detail, 5, "M 43 52 H 82 M 43 66 H 68")}},
        {"phone",
         {fill(main, "T 225 M 4 62 C 2 40 24 24 50 24 C 76 24 98 40 96 62 C 96 67 93 70 88 69 L 73 66 C 68 65 "
                     "66 62 66 57 "
                     "V 50 C 56 46 44 46 34 50 V 57 C 34 62 32 65 27 66 L 12 69 C 7 70 4 67 4 62 Z")}},
        {"microphone",
         {fill(main, "R 33 2 34 58 17"), line(detail, kFine, "M 45 19 H 55 M 45 31 H 55 M 45 43 H 55"),
          line(main, kMedium, "M 19 44 C 19 64 33 76 50 76 C 67 76 81 64 81 44 M 50 77 V 95 M 33 96 H 67")}},
        {"person", {fill(main, "O 50 27 22"), fill(main, "M 8 95 C 8 70 26 56 50 56 C 74 56 92 70 92 95 Z")}},
        {"people",
         {fill(soft, "O 72 32 16 M 50 92 C 50 68 58 54 74 54 C 90 54 98 68 98 86 C 98 90 96 92 92 92 Z"),
          fill(main, "O 37 28 20 M 2 92 C 2 68 16 54 37 54 C 58 54 72 68 72 92 C 72 93 71 94 70 94 H 4 C 3 94 "
                     "2 93 2 92 Z")}},
        {"bell",
         {line(main, kMedium, "M 50 6 V 14"), fill(accent, "A 50 82 15 180 180 Z"),
          fill(main, "M 50 10 C 68 10 79 24 80 42 C 81 60 85 68 93 74 C 96 77 95 81 91 81 H 9 C 5 81 4 77 7 74 "
                     "C 15 68 19 "
                     "60 20 42 C 21 24 32 10 50 10 Z")}},
        {"megaphone",
         {fill(soft, "M 22 60 H 40 L 46 86 C 47 90 45 92 41 92 H 34 C 31 92 29 91 28 88 Z"),
          fill(main, "M 14 34 H 42 V 64 H 14 C 8 64 4 59 4 49 C 4 39 8 34 14 34 Z"),
          solid(main, 4, "M 42 36 L 76 14 V 84 L 42 62 Z"), fill(shade, "M 42 34 H 48 V 64 H 42 Z"),
          line(accent, kMedium, "M 87 34 C 94 40 94 58 87 64")}},
        {"at",
         {line(main, kBold,
               "O 50 50 16 M 66 34 V 58 C 66 68 72 72 78 72 C 88 72 93 62 93 50 C 93 26 74 7 50 7 C 26 7 7 26 "
               "7 50 C 7 74 26 93 50 93 C 59 93 66 91 73 87")}},
        {"video",
         {fill(main, "R 2 22 66 56 14"), solid(main, 6, "M 78 45 L 94 33 V 67 L 78 55 Z"),
          fill(accent, "O 18 37 6")}},
        {"antenna",
         {line(main, kBold, "A 50 40 18 120 120 A 50 40 18 -60 120"),
          line(soft, kBold, "A 50 40 36 125 110 A 50 40 36 -55 110"), fill(accent, "O 50 40 9"),
          solid(main, 5, "M 48 56 H 52 L 60 94 H 40 Z")}},
    };
}

} // namespace tavrik::practice
