#include "backups/BackupContainer.h"
#include "platform/Log.h"
#include "platform/Random.h"
#include "tests/support/NumberedMachine.h"

#include <algorithm>
#include <cstdlib>

using namespace tavrik;

namespace {

/// The same nonce for all, so that a find can be repeated.
struct NoRandom : Random {
    Bytes bytes(std::size_t count) override { return Bytes(count); }
};

void require(bool holds) {
    if (!holds)
        std::abort();
}

} // namespace

/// Nothing that was not sealed here opens; what was, opens to itself, and no more with a byte changed or cut.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const test::NumberedMachine machine("C02TAVRIK001");
    static NoRandom random;
    static const BackupContainer container(machine, random);
    setLogStream(nullptr);

    const Bytes input(data, data + size);
    require(!container.open(input));
    const auto sealed = container.seal(input);
    require(sealed && container.open(*sealed) == input);

    std::size_t place = 0;
    for (const std::uint8_t byte : input)
        place = (place * 31 + byte) % sealed->size();
    Bytes changed = *sealed;
    changed[place] ^= static_cast<std::uint8_t>(1u << (size % 8));
    require(!container.open(std::move(changed)));
    require(!container.open(Bytes(sealed->begin(), sealed->begin() + static_cast<std::ptrdiff_t>(place))));
    return 0;
}
