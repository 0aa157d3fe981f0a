#include "lockout.h"

namespace device {

unsigned Lockout::locked(const std::string &address, uint64_t now)
{
    std::lock_guard<std::mutex> guard(lock_);
    const auto found = entries_.find(address);
    if (found == entries_.end() || found->second.lockedUntil <= now)
        return 0;
    return static_cast<unsigned>(found->second.lockedUntil - now);
}

bool Lockout::failed(const std::string &address, uint64_t now)
{
    std::lock_guard<std::mutex> guard(lock_);
    auto found = entries_.find(address);
    if (found == entries_.end()) {
        if (entries_.size() >= kAddresses) {
            // The address seen longest ago goes, one that is not locked out
            // first: a flood of new addresses does not lift a lockout.
            auto oldest = entries_.begin();
            for (auto e = entries_.begin(); e != entries_.end(); ++e) {
                const bool eLocked = e->second.lockedUntil > now, oldestLocked = oldest->second.lockedUntil > now;
                if (eLocked != oldestLocked ? !eLocked : e->second.seen < oldest->second.seen)
                    oldest = e;
            }
            entries_.erase(oldest);
        }
        found = entries_.emplace(address, Entry()).first;
    }
    Entry &e = found->second;
    e.seen = now;
    if (e.lockedUntil != 0 && e.lockedUntil <= now) { // a lockout that ended starts the count again
        e = Entry();
        e.seen = now;
    }
    e.failures[e.next] = now;
    e.next = (e.next + 1) % kFailures;
    if (e.count < kFailures)
        ++e.count;
    // The oldest of the latest kFailures failures is the one about to be
    // overwritten next; all of them within the window lock the address.
    if (e.count == kFailures && now - e.failures[e.next] < seconds_) {
        e.lockedUntil = now + seconds_;
        return true;
    }
    return false;
}

void Lockout::succeeded(const std::string &address)
{
    std::lock_guard<std::mutex> guard(lock_);
    entries_.erase(address);
}

size_t Lockout::size()
{
    std::lock_guard<std::mutex> guard(lock_);
    return entries_.size();
}

} // namespace device
