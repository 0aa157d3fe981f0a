/*
 * Failed logins by client address: after kFailures within the window an
 * address is locked out for the same length of time. The table holds at most
 * kAddresses addresses; a new one pushes out the one seen longest ago (one not
 * locked out, while there is one), so a flood of addresses costs bounded
 * memory and can at worst make the table forget some failures early, never
 * lock out an address that did not fail.
 *
 * Times are whole seconds from any fixed start, passed in by the caller: the
 * table keeps no clock of its own.
 */
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <mutex>
#include <string>

namespace device {

class Lockout {
public:
    static constexpr unsigned kFailures = 5;
    static constexpr size_t kAddresses = 1024;

    explicit Lockout(unsigned seconds = 60) : seconds_(seconds) {}
    void set_seconds(unsigned seconds) { seconds_ = seconds; }

    // Seconds until the address may try again; 0 when it is not locked out.
    unsigned locked(const std::string &address, uint64_t now);
    // Counts a failed login; returns true when this failure locks the address.
    bool failed(const std::string &address, uint64_t now);
    // A login that succeeded: the address's failures are forgotten.
    void succeeded(const std::string &address);

    size_t size();

private:
    struct Entry {
        uint64_t failures[kFailures] = {}; // times of the latest failures, a ring
        unsigned count = 0;                // failures in the ring, up to kFailures
        unsigned next = 0;
        uint64_t lockedUntil = 0;
        uint64_t seen = 0;
    };
    std::mutex lock_;
    std::map<std::string, Entry> entries_;
    unsigned seconds_;
};

} // namespace device
