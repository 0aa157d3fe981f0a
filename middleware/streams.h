/*
 * streams.h - what the video pages and the video capability page share: the
 * stream names and the compact bit-rate list.
 */
#ifndef MIDDLEWARE_STREAMS_H
#define MIDDLEWARE_STREAMS_H

#include "internal.h"

namespace mw {

/* The streams by index. The frame-rate and bit-rate pages use the first five
   names only. */
constexpr int32_t kStreamNameCount = 6;
constexpr const char *kStreamNames[kStreamNameCount] = {
    "mainStream", "subStream", "thirdStream", "fourthStream", "fifthStream", "sixthStream",
};

/* Stream loops run while i < a stored count, and never past the names. */
inline int32_t bounded_count(int32_t count, int32_t limit) { return count < limit ? count : limit; }

/* The non-zero values among 30 slots, in slot order (0 marks an empty slot):
   the compact bit-rate list, shown read-only. */
struct NonzeroValues {
    int32_t values[30];
    int32_t count;
};

inline NonzeroValues nonzero_values(const int32_t (&slots)[30])
{
    NonzeroValues v{};
    for (int32_t s : slots)
        if (s != 0)
            v.values[v.count++] = s;
    return v;
}

} // namespace mw

#endif /* MIDDLEWARE_STREAMS_H */
