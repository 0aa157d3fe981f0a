/*
 * Accepted Digest responses, remembered for a few seconds, so that a replayed
 * Authorization field is refused even in the second its nonce was made in.
 *
 * libmicrohttpd refuses a nonce count used before with the same nonce, but it
 * makes a challenge's nonce from the second, the method and the URI alone and
 * starts the nonce's counts afresh whenever it hands that nonce out again: a
 * failed request answered with a challenge in the same second, for the same
 * method and URI, would let the replayed field through on the next try. A
 * client never sends the same response value twice (it changes with every
 * nonce count), so a value seen again is a replay. Outside the second of its
 * nonce the library's own count check holds; the horizon here covers that
 * second with room to spare. At most kEntries values are kept.
 */
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <mutex>
#include <string>
#include <unordered_set>

namespace device {

class RecentResponses {
public:
    static constexpr size_t kEntries = 65536;
    static constexpr uint64_t kSeconds = 5;

    // True the first time `value` is seen within the horizon; it is then
    // remembered. False for a value seen before (a replay).
    bool first_use(const std::string &value, uint64_t now);

private:
    std::mutex lock_;
    std::unordered_set<std::string> seen_;
    std::deque<std::pair<uint64_t, std::string>> order_;
};

// The value of the `response` parameter of a Digest Authorization field
// (quoted or not). False when there is none or more than one.
bool digest_response(const std::string &field, std::string *value);

} // namespace device
