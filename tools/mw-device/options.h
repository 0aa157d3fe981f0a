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
    unsigned threads = 4;
    unsigned timeout = 10;
    std::string fixedBody;
    std::vector<std::string> corsOrigins;
    bool requireIfMatch = false;
    // Accounts and HTTPS (auth.h): process-wide, for every page.
    std::string usersFile;       // --users: none, authentication off (loopback only)
    bool digestMd5 = false;      // --digest-algorithm md5
    unsigned lockoutSeconds = 60; // --lockout-seconds
    std::string tlsCert, tlsKey; // --tls-cert, --tls-key: both or neither
};

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
