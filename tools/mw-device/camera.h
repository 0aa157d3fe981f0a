/*
 * One simulated camera: its number, its identity (MAC address, serial number,
 * IP addresses, name), its copy of every page and where it saves them.
 *
 * A camera's pages share the catalog's samples until they are set (pages.h).
 * The pages that tell cameras apart (device information, TCP/IP, HTTP, UPnP,
 * Bonjour, VPN) get states of the camera's own at start, carrying its
 * identity. The one camera of a plain run keeps the catalog's identity, so
 * its documents are the catalog's samples byte for byte.
 */
#pragma once

#include "pages.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace device {

struct Identity {
    unsigned id = 0;     // counted from 1
    std::string mac;     // "02:1c:27:00:00:2a": the sample's prefix, locally administered, then the number
    std::string serial;  // "NV4240B26F0000042"
    std::string ipv4;    // "10.0.0.43", on 10.0.0.0/8 behind 10.0.0.1 (displayed only)
    std::string ipv6;    // "2001:db8:4a:10::c:2a"
    std::string name;    // "Camera 0042"
};

// The identity of camera `id` (1 to 16,000,000), derived from the number
// alone: cameras of different processes with disjoint numbers never share one.
Identity identity_of(unsigned id);
// The catalog's own identity, read from its samples.
Identity sample_identity();

class Camera {
public:
    // Camera `id` with every page at its sample; `derived` writes the
    // camera's identity into its identity pages, otherwise it keeps the
    // catalog's. `stateDir` is where it saves (empty: nowhere).
    Camera(unsigned id, bool derived, std::string stateDir);
    Camera(const Camera &) = delete;
    Camera &operator=(const Camera &) = delete;

    unsigned id() const { return identity_.id; }
    const Identity &identity() const { return identity_; }
    const std::string &state_dir() const { return stateDir_; }

    // The camera's page at `path`, or nullptr.
    Page *find(const std::string &path);
    size_t page_count() const { return count_; }
    Page &page(size_t k) { return pages_[k]; }

    // Where the camera answers, e.g. "http://127.0.0.1:8080"; set once its
    // server listens.
    std::string url;
    // The fleet's list (GET /fleet), served by the first camera only, once
    // every camera listens.
    std::atomic<const std::string *> fleetDocument{nullptr};

private:
    Identity identity_;
    std::string stateDir_;
    size_t count_ = 0;
    std::unique_ptr<Page[]> pages_;
};

} // namespace device
