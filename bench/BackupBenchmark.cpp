#include "backups/BackupContainer.h"
#include "backups/BackupKey.h"
#include "platform/Random.h"
#include "tests/support/NumberedMachine.h"

#include <benchmark/benchmark.h>
#include <openssl/evp.h>

#include <cstdlib>
#include <memory>
#include <utility>

namespace tavrik::bench {
namespace {

constexpr std::size_t kSize = 48'000'000; ///< bytes, as of a Launchpad database of 50,000 rows

struct Sealing {
    test::NumberedMachine machine{"C02TAVRIK001"};
    SystemRandom random;
    BackupContainer container{machine, random};
};

Bytes archive() {
    Bytes bytes;
    bytes.reserve(kSize + BackupContainer::kOverhead);
    bytes.resize(kSize, 7);
    return bytes;
}

template<typename T>
T need(std::optional<T> value) {
    if (!value)
        std::abort();
    return std::move(*value);
}

void sealArchive(benchmark::State& state) {
    const Sealing sealing;
    Bytes bytes = archive();
    for (auto _ : state) {
        bytes = need(sealing.container.seal(std::move(bytes)));
        bytes.resize(kSize);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(kSize));
}

void openContainer(benchmark::State& state) {
    const Sealing sealing;
    Bytes bytes = archive();
    for (auto _ : state) {
        state.PauseTiming();
        bytes = need(sealing.container.seal(std::move(bytes)));
        state.ResumeTiming();
        bytes = need(sealing.container.open(std::move(bytes)));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(kSize));
}

/// The cipher alone, on one block that stays in its place. Whether a tag fits makes no difference to the time.
void inPlaceByOpenSSL(benchmark::State& state, bool seals) {
    Bytes bytes = archive();
    const BackupKey key = need(deriveBackupKey(Sealing().machine));
    const Bytes nonce = SystemRandom().bytes(BackupContainer::kNonceSize);
    Bytes tag(BackupContainer::kTagSize);
    for (auto _ : state) {
        const std::unique_ptr<EVP_CIPHER_CTX, void (*)(EVP_CIPHER_CTX*)> context(EVP_CIPHER_CTX_new(),
                                                                                 &EVP_CIPHER_CTX_free);
        EVP_CipherInit_ex2(context.get(), EVP_aes_256_gcm(), key.bytes().data(), nonce.data(), seals, nullptr);
        if (!seals)
            EVP_CIPHER_CTX_ctrl(context.get(), EVP_CTRL_AEAD_SET_TAG, static_cast<int>(tag.size()), tag.data());
        int processed = 0;
        EVP_CipherUpdate(context.get(), bytes.data(), &processed, bytes.data(), static_cast<int>(kSize));
        EVP_CipherFinal_ex(context.get(), tag.data(), &processed);
        if (seals)
            EVP_CIPHER_CTX_ctrl(context.get(), EVP_CTRL_AEAD_GET_TAG, static_cast<int>(tag.size()), tag.data());
        benchmark::DoNotOptimize(bytes.data());
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(kSize));
}

void sealByOpenSSL(benchmark::State& state) {
    inPlaceByOpenSSL(state, true);
}

void openByOpenSSL(benchmark::State& state) {
    inPlaceByOpenSSL(state, false);
}

BENCHMARK(sealArchive)->Unit(benchmark::kMillisecond);
BENCHMARK(sealByOpenSSL)->Unit(benchmark::kMillisecond);
BENCHMARK(openContainer)->Unit(benchmark::kMillisecond);
BENCHMARK(openByOpenSSL)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tavrik::bench
