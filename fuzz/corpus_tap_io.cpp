// Writes the seeds the corpus tap records (see corpus_tap.h).
#include "corpus_tap.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {
const char* const kNames[] = {
#define P(name, call) #name,
#include "parsers.inc"
#undef P
};
}  // namespace

void zovFuzzTap(unsigned index, const uint8_t* msg, int len, uint16_t arg) {
    const char* dir = std::getenv("ZOVQMI_CORPUS_DIR");
    if (!dir || !msg || len < 0 || len > kFuzzMaxMessage || index >= sizeof kNames / sizeof kNames[0]) return;
    uint32_t name = zovFuzzNameHash(kNames[index]);
    std::vector<uint8_t> seed = {uint8_t(name), uint8_t(name >> 8), uint8_t(name >> 16), uint8_t(name >> 24),
                                 0, uint8_t(arg), uint8_t(arg >> 8)};
    seed.insert(seed.end(), msg, msg + len);
    uint64_t h = 0xcbf29ce484222325ull;  // FNV-1a, so that repeated inputs land in one file
    for (uint8_t b : seed) h = (h ^ b) * 0x100000001b3ull;
    char hex[17];
    std::snprintf(hex, sizeof hex, "%016llx", static_cast<unsigned long long>(h));
    std::string path = std::string(dir) + "/" + kNames[index] + "-" + hex;
    if (FILE* f = std::fopen(path.c_str(), "wb")) {
        std::fwrite(seed.data(), 1, seed.size(), f);
        std::fclose(f);
    }
}
