/*
 * The cameras of one process and their servers: camera k (counted from the
 * first camera's number) listens on --port + k - 1 of the listening address,
 * each with a server of its own, and the first camera answers GET /fleet
 * with the list of them all.
 */
#pragma once

#include "camera.h"
#include "options.h"
#include "security.h"

#include <microhttpd.h>

#include <memory>
#include <string>
#include <vector>

namespace device {

// One server on `port` answering through `handler` with `cls`: `threads`
// threads (one: a single polling thread), as main and the fleet start them.
struct MHD_Daemon *start_server(const Options &options, unsigned port, unsigned threads, const Security &security,
                                MHD_AccessHandlerCallback handler, void *cls);

// The port a server is bound to (the one asked for unless that was 0).
unsigned bound_port(struct MHD_Daemon *daemon, unsigned asked);

// Raises the limit of open files to its hard limit: every camera holds a
// listening socket and an event queue, and each connection a socket.
void raise_open_file_limit();

class Fleet {
public:
    Fleet() = default;
    Fleet(const Fleet &) = delete;
    Fleet &operator=(const Fleet &) = delete;
    ~Fleet() { stop(); }

    // Makes the cameras (restoring their saved pages with --state, several
    // at a time), then starts their servers. False with a reason when a
    // folder cannot be made or a port cannot be listened on.
    bool start(const Options &options, const Security &security, std::string *why);
    void stop();

    const std::vector<std::unique_ptr<Camera>> &cameras() const { return cameras_; }
    // The first camera's server's port.
    unsigned first_port() const { return firstPort_; }

private:
    std::vector<std::unique_ptr<Camera>> cameras_;
    std::vector<struct MHD_Daemon *> daemons_;
    std::string document_;
    unsigned firstPort_ = 0;
};

// {"cameras": [{"id", "url", "mac", "serial"}, ...]} in the cameras' order.
std::string fleet_document(const std::vector<std::unique_ptr<Camera>> &cameras);

} // namespace device
