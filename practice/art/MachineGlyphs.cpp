#include "practice/art/Glyphs.h"

namespace tavrik::practice {

std::vector<Glyph> machineGlyphs() {
    using enum Tone;
    return {
        {"gear",
         {solid(main, 4, "M 41 4 H 59 L 62 22 H 38 Z", 8), fill(main, "O 50 50 35"),
          fill(detail, "O 50 50 15")}},
        {"terminal",
         {fill(main, "R 3 11 94 78 13"), line(detail, 7, "M 20 34 L 37 49 L 20 64"),
          line(accent, 7, "M 47 66 H 72")}},
        {"brackets",
         {line(main, kBold, "M 28 22 L 6 50 L 28 78 M 72 22 L 94 50 L 72 78"),
          line(accent, kBold, "M 58 12 L 42 88")}},
        {"key",
         {line(main, 11, "T 45 O 50 20 20"),
          line(main, kBold, "T 45 M 50 44 V 102 M 51 84 H 66 M 51 98 H 62")}},
        {"lock",
         {line(main, 9, "M 28 46 V 30 C 28 17 37 7 50 7 C 63 7 72 17 72 30 V 46"),
          fill(main, "R 13 42 74 54 13"), fill(detail, "O 50 64 8"), line(detail, 6, "M 50 66 V 79")}},
        {"disk",
         {fill(main,
               "M 18 5 H 72 L 95 28 V 82 C 95 90 90 95 82 95 H 18 C 10 95 5 90 5 82 V 18 C 5 10 10 5 18 5 Z"),
          fill(soft, "M 27 5 H 67 V 27 C 67 31 65 33 61 33 H 33 C 29 33 27 31 27 27 Z"),
          fill(detail, "R 53 10 8 17 3"),
          fill(detail, "M 20 95 V 57 C 20 52 23 49 28 49 H 72 C 77 49 80 52 80 57 V 95 Z"),
          line(main, kFine, "M 32 63 H 68 M 32 75 H 68")}},
        {"drive",
         {solid(soft, 6, "M 22 20 H 78 L 94 58 H 6 Z"), fill(main, "R 3 52 94 34 11"),
          line(detail, 5, "M 17 69 H 52"), fill(accent, "O 80 69 6")}},
        {"magnifier",
         {line(soft, 14, "M 68 68 L 89 89"), fill(main, "O 41 41 38"), fill(detail, "O 41 41 27"),
          fill(shine, "A 41 41 27 45 180 Z")}},
        {"puzzle",
         {solid(main, 5,
                "M 8 32 H 32 C 34 32 35 30 34 28 C 32 25 31 22 31 19 C 31 11 37 5 45 5 C 53 5 59 11 59 19 C 59 "
                "22 58 25 "
                "56 28 C 55 30 56 32 58 32 H 76 V 52 C 76 54 78 55 80 54 C 83 52 84 52 86 52 C 92 52 96 57 96 "
                "63 C 96 69 "
                "92 74 86 74 C 84 74 83 74 80 72 C 78 71 76 72 76 74 V 94 H 8 V 72 C 8 70 10 69 12 70 C 14 71 "
                "15 71 17 71 "
                "C 23 71 27 67 27 61 C 27 55 23 51 17 51 C 15 51 14 51 12 52 C 10 53 8 52 8 50 Z")}},
        {"bolt", {solid(main, 5, "M 58 4 L 18 56 H 44 L 36 96 L 82 40 H 54 Z")}},
        {"cloud",
         {fill(main, "O 28 62 24 O 50 42 28 O 74 64 22 R 28 56 46 30 0"),
          line(accent, kBold, "M 50 50 V 74 M 39 63 L 50 75 L 61 63")}},
        {"shield",
         {solid(main, 5,
                "M 50 4 C 62 14 76 18 90 18 C 91 54 82 80 50 96 C 18 80 9 54 10 18 C 24 18 38 14 50 4 Z"),
          fill(shade, "M 50 2 C 62 12 76 16 92 16 C 93 55 84 82 50 98 Z"),
          line(detail, kBold, "M 32 50 L 45 63 L 69 36")}},
        {"wrench",
         {fill(main, "T 45 M 40 40 C 28 36 22 24 24 12 C 26 4 32 -2 38 -4 V 14 L 50 22 L 62 14 V -4 C 68 -2 74 "
                     "4 76 12 C 78 24 72 36 "
                     "60 40 V 92 C 60 99 56 103 50 103 C 44 103 40 99 40 92 Z"),
          fill(detail, "T 45 O 50 91 5")}},
        {"database",
         {fill(main, "M 12 20 H 88 V 80 C 88 89 72 96 50 96 C 28 96 12 89 12 80 Z"),
          fill(main, "E 50 20 38 16"), fill(shade, "E 50 20 38 16"),
          line(detail, 5, "M 12 44 C 20 56 80 56 88 44 M 12 66 C 20 78 80 78 88 66")}},
        {"network",
         {line(soft, kMedium, "M 50 18 L 18 76 M 50 18 L 82 76 M 18 76 H 82"),
          fill(main, "O 18 78 16 O 82 78 16"), fill(accent, "O 50 19 18")}},
        {"flask",
         {fill(main, "M 36 4 H 64 V 36 L 90 80 C 95 89 90 96 81 96 H 19 C 10 96 5 89 10 80 L 36 36 Z"),
          fill(accent, "M 29 58 C 38 52 44 64 54 60 C 62 57 66 56 71 58 L 83 79 C 86 85 83 89 77 89 H 23 C 17 "
                       "89 14 85 17 79 Z"),
          fill(shine, "O 40 74 5 O 58 79 4 O 52 69 2.5"), fill(soft, "R 30 1 40 11 5")}},
        {"atom",
         {line(main, 5, "E 50 50 46 17"), line(main, 5, "T 60 E 50 50 46 17"),
          line(main, 5, "T 120 E 50 50 46 17"), fill(accent, "O 50 50 9")}},
        {"chip",
         {line(soft, kMedium, "M 34 4 V 18 M 50 4 V 18 M 66 4 V 18", 4), fill(main, "R 16 16 68 68 11"),
          fill(detail, "R 31 31 38 38 6"), fill(accent, "O 41 41 4")}},
        {"robot",
         {line(main, 5, "M 50 12 V 28"), fill(accent, "O 50 9 7"), fill(soft, "R 1 46 14 28 6 R 85 46 14 28 6"),
          fill(main, "R 10 25 80 66 19"), fill(detail, "O 33 53 9 O 67 53 9"),
          line(detail, 5, "M 36 75 H 64")}},
        {"gauge",
         {line(main, 12, "A 50 54 40 -30 240"), line(accent, 12, "A 50 54 40 -30 62"),
          line(main, 6, "M 50 54 L 68 34"), fill(main, "O 50 54 9")}},
        {"bug",
         {line(main, 5,
               "M 28 48 L 8 38 M 26 62 H 4 M 30 76 L 12 90 M 72 48 L 92 38 M 74 62 H 96 M 70 76 L 88 90 M 40 "
               "20 L 32 6 M 60 20 L 68 6"),
          fill(soft, "O 50 28 17"), fill(main, "E 50 63 27 33"), line(detail, 5, "M 50 34 V 92"),
          fill(accent, "O 38 56 5 O 62 56 5 O 40 74 5 O 60 74 5")}},
    };
}

} // namespace tavrik::practice
