#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

/// What PNG does to each row of pixels before it is compressed: every byte is replaced by its difference from a
/// guess made of its neighbours. Pure; any thread.
namespace tavrik::png {

/// The byte in front of each row.
enum class Filter : std::uint8_t { none, sub, up, average, paeth };

/// Filters the rows of one picture from top to bottom, each in the way that leaves the smallest differences.
class RowFilter {
public:
    RowFilter(std::size_t rowBytes, std::size_t pixelBytes);

    /// Filters the next row, `rowBytes` long, into `target`: a byte for the filter, then `rowBytes`.
    void write(const std::uint8_t* row, std::uint8_t* target);

    /// What is left of all rows so far: the sum of the differences, signs aside.
    std::uint64_t differences() const { return m_differences; }

private:
    std::size_t m_rowBytes;
    std::size_t m_pixelBytes;
    std::vector<std::uint8_t> m_current; ///< a pixel of zeros for the neighbour of the first, then the row
    std::vector<std::uint8_t> m_above;   ///< the same of the row before
    std::vector<std::uint8_t> m_attempt;
    std::uint64_t m_differences = 0;
};

/// Undoes the filter in place; `above` is the row over it, already undone, zeros over the first, and of the
/// same length. A pixel has one to four bytes. False when there is no such filter.
[[nodiscard]] bool unfilter(std::uint8_t filter, std::span<std::uint8_t> row, const std::uint8_t* above,
                            std::size_t pixelBytes);

} // namespace tavrik::png
