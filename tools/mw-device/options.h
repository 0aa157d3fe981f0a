/*
 * The command line of mw-device.
 */
#pragma once

#include <string>
#include <vector>

namespace device {

struct Options {
    std::string listen = "127.0.0.1";
    unsigned port = 8080;
    std::string stateDir;
    std::string webDir; // empty: found beside the executable (see default_web_dir)
    unsigned threads = 4;       // each camera's server threads
    bool threadsGiven = false;  // a fleet's cameras take 1 unless told
    unsigned cameras = 1;       // camera k listens on port + k - 1
    unsigned firstId = 0;       // the first camera's number; 0: not given (1)

    unsigned timeout = 10;
    std::string fixedBody;
    std::vector<std::string> corsOrigins;
    bool requireIfMatch = false;
    // Accounts and HTTPS (auth.h): process-wide, for every page.
    std::string usersFile;       // --users: none, authentication off (loopback only)
    bool digestMd5 = false;      // --digest-algorithm md5
    unsigned lockoutSeconds = 60; // --lockout-seconds
    std::string tlsCert, tlsKey; // --tls-cert, --tls-key: both or neither

    // A fleet derives every camera's identity from its number and saves
    // camera k under DIR/camera-<k>; the one camera of a plain run (no
    // --cameras above 1, no --first-id) keeps the catalog's identity and
    // saves in DIR.
    bool fleet() const { return cameras > 1 || firstId != 0; }
    unsigned first_id() const { return firstId != 0 ? firstId : 1; }
};

// The most cameras one process serves, and the highest camera number.
constexpr unsigned kMaxCameras = 1000;
constexpr unsigned kMaxCameraId = 9999999;

// Reads the command line into `options`. On a malformed or unknown option it
// returns false with a one-line reason in `error`; "--help" returns false
// with an empty `error`.
bool parse_options(int argc, char **argv, Options *options, std::string *error);

const char *usage_text();

// Where the browser page is when --web is not given: where the install put it
// relative to the executable (<exe dir>/MW_WEB_FROM_BIN, ../share/middleware/web
// for the usual layout), else the source tree's web/ for a run from the build
// tree.
std::string default_web_dir();

} // namespace device
