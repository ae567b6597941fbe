#pragma once

#include <span>
#include <string_view>

namespace tavrik {

/// One styled alphabet as Unicode lays it out: runs of consecutive code points, and the characters that stand
/// elsewhere.
struct StyledAlphabet {
    struct Exception {
        char plain;
        char32_t styled;
    };

    std::string_view name;
    char32_t small = 0;   ///< the styled a
    char32_t capital = 0; ///< the styled A; the styled a again where one run serves both cases
    char32_t zero = 0;    ///< the styled 0; none for a style without digits
    std::span<const Exception> exceptions = {};
    /// Names stay readable in their case. False for Circled too, although it has both cases: the circles are
    /// too much alike.
    bool multiCase = true;

    /// The styled character of an ASCII letter or digit; 0 for a digit that the style does not have.
    constexpr char32_t operator()(char plain) const {
        const bool isDigit = plain >= '0' && plain <= '9';
        if (isDigit && zero == 0)
            return 0;
        const bool isCapital = plain >= 'A' && plain <= 'Z';
        const char wanted = isCapital && capital == small ? static_cast<char>(plain - 'A' + 'a') : plain;
        for (const Exception& exception : exceptions)
            if (exception.plain == wanted)
                return exception.styled;
        if (isDigit)
            return zero + static_cast<char32_t>(plain - '0');
        return isCapital ? capital + static_cast<char32_t>(plain - 'A')
                         : small + static_cast<char32_t>(plain - 'a');
    }
};

/// All twenty, in the order of the font picker.
std::span<const StyledAlphabet> styledAlphabets();

} // namespace tavrik
