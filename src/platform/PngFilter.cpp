#include "platform/PngFilter.h"

#include <algorithm>
#include <utility>

namespace tavrik::png {

namespace {

/// Rows whose differences come to less than this for each byte are flat or nearly so, as most are in drawn
/// pictures: the third filter, which costs more than the other two, would hardly find anything in them.
constexpr double kTextured = 0.5;

/// The neighbours of one row's bytes, all to be indexed alike.
struct Neighbours {
    const std::uint8_t* left;
    const std::uint8_t* above;
    const std::uint8_t* aboveLeft;
};

/// Of the three neighbours the one that is next to left + above - aboveLeft; the first of equals.
inline std::uint8_t paeth(std::uint8_t left, std::uint8_t above, std::uint8_t aboveLeft) {
    // Sixteen bits hold every difference; the compiler then handles eight bytes at once.
    const auto fromLeft = static_cast<std::int16_t>(above - aboveLeft);
    const auto fromAbove = static_cast<std::int16_t>(left - aboveLeft);
    const auto fromBoth = static_cast<std::int16_t>(fromLeft + fromAbove);
    const auto distance = [](std::int16_t difference) {
        return static_cast<std::int16_t>(difference < 0 ? -difference : difference);
    };
    const std::int16_t toLeft = distance(fromLeft);
    const std::int16_t toAbove = distance(fromAbove);
    const std::int16_t toAboveLeft = distance(fromBoth);
    const std::uint8_t other = toAbove <= toAboveLeft ? above : aboveLeft;
    return toLeft <= std::min(toAbove, toAboveLeft) ? left : other;
}

/// Writes the differences from the guesses, and returns the sum of what they come to, signs aside.
template<typename Guess>
std::uint32_t writeDifferences(std::size_t count, const std::uint8_t* row, const Neighbours& near,
                               std::uint8_t* __restrict target, Guess guess) {
    std::uint32_t sum = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const auto difference =
            static_cast<std::uint8_t>(row[i] - guess(near.left[i], near.above[i], near.aboveLeft[i]));
        target[i] = difference;
        sum += std::min(difference, static_cast<std::uint8_t>(-difference));
    }
    return sum;
}

/// From left to right, so that the left neighbour is undone already.
template<std::size_t PixelBytes, typename Guess>
void addGuesses(std::span<std::uint8_t> row, const std::uint8_t* above, Guess guess) {
    std::uint8_t left[PixelBytes] = {};
    std::uint8_t aboveLeft[PixelBytes] = {};
    for (std::size_t at = 0; at + PixelBytes <= row.size(); at += PixelBytes) {
        for (std::size_t i = 0; i < PixelBytes; ++i) {
            left[i] = static_cast<std::uint8_t>(row[at + i] + guess(left[i], above[at + i], aboveLeft[i]));
            aboveLeft[i] = above[at + i];
            row[at + i] = left[i];
        }
    }
}

template<std::size_t PixelBytes>
bool unfilterPixels(Filter filter, std::span<std::uint8_t> row, const std::uint8_t* above) {
    using Byte = std::uint8_t;
    switch (filter) {
    case Filter::none:
        return true;
    case Filter::sub:
        addGuesses<PixelBytes>(row, above, [](Byte left, Byte, Byte) { return left; });
        return true;
    case Filter::up:
        for (std::size_t i = 0; i < row.size(); ++i)
            row[i] = static_cast<Byte>(row[i] + above[i]);
        return true;
    case Filter::average:
        addGuesses<PixelBytes>(row, above, [](Byte left, Byte over, Byte) { return (left + over) / 2; });
        return true;
    case Filter::paeth:
        addGuesses<PixelBytes>(row, above, paeth);
        return true;
    }
    return false;
}

} // namespace

RowFilter::RowFilter(std::size_t rowBytes, std::size_t pixelBytes)
    : m_rowBytes(rowBytes),
      m_pixelBytes(pixelBytes),
      m_current(pixelBytes + rowBytes),
      m_above(pixelBytes + rowBytes),
      m_attempt(rowBytes) {}

void RowFilter::write(const std::uint8_t* pixels, std::uint8_t* target) {
    using Byte = std::uint8_t;
    std::copy_n(pixels, m_rowBytes, m_current.data() + m_pixelBytes);
    const Byte* row = m_current.data() + m_pixelBytes;
    const Neighbours near{m_current.data(), m_above.data() + m_pixelBytes, m_above.data()};

    Filter chosen = Filter::up;
    std::uint32_t least =
        writeDifferences(m_rowBytes, row, near, target + 1, [](Byte, Byte above, Byte) { return above; });
    const auto attempt = [&](Filter filter, auto guess) {
        const std::uint32_t sum = writeDifferences(m_rowBytes, row, near, m_attempt.data(), guess);
        if (sum >= least)
            return;
        least = sum;
        chosen = filter;
        std::ranges::copy(m_attempt, target + 1);
    };
    attempt(Filter::sub, [](Byte left, Byte, Byte) { return left; });
    if (least > kTextured * static_cast<double>(m_rowBytes))
        attempt(Filter::paeth, paeth);

    target[0] = static_cast<Byte>(chosen);
    m_differences += least;
    std::swap(m_current, m_above);
}

bool unfilter(std::uint8_t filter, std::span<std::uint8_t> row, const std::uint8_t* above,
              std::size_t pixelBytes) {
    const auto known = static_cast<Filter>(filter);
    switch (pixelBytes) {
    case 1:
        return unfilterPixels<1>(known, row, above);
    case 2:
        return unfilterPixels<2>(known, row, above);
    case 3:
        return unfilterPixels<3>(known, row, above);
    default:
        return unfilterPixels<4>(known, row, above);
    }
}

} // namespace tavrik::png
