#include "options.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>

#ifndef MW_WEB_FROM_BIN
#define MW_WEB_FROM_BIN "../share/middleware/web"
#endif

namespace device {

namespace {

// A whole number from `low` to `high`, nothing else around it.
bool number(const char *text, unsigned long low, unsigned long high, unsigned *out)
{
    if (text[0] < '0' || text[0] > '9')
        return false; // no sign, no blanks
    char *end = nullptr;
    errno = 0;
    const unsigned long v = strtoul(text, &end, 10);
    if (*end != '\0' || errno != 0 || v < low || v > high)
        return false;
    *out = static_cast<unsigned>(v);
    return true;
}

// An origin as a browser sends it: scheme "://" host [":" port], no path.
bool origin(const std::string &text)
{
    const size_t scheme = text.find("://");
    if (scheme == std::string::npos || scheme == 0 || text.size() == scheme + 3)
        return false;
    for (const char c : text.substr(scheme + 3)) {
        if (c == '/' || c == ' ' || c == '?' || c == '#')
            return false;
    }
    return true;
}

bool has_index(const std::string &dir)
{
    struct stat info {};
    return stat((dir + "/index.html").c_str(), &info) == 0 && S_ISREG(info.st_mode);
}

} // namespace

const char *usage_text()
{
    return "usage: mw-device [--listen ADDR] [--port N] [--state DIR] [--web DIR] [--threads N]\n"
           "                 [--timeout SECONDS] [--cors ORIGIN]... [--require-if-match]\n"
           "                 [--cameras N] [--first-id K]\n"
           "                 [--users FILE [--digest-algorithm sha256|md5] [--lockout-seconds N]]\n"
           "                 [--tls-cert FILE --tls-key FILE]\n"
           "       mw-device --add-user FILE NAME ROLE   (the password on standard input;\n"
           "                                              ROLE: administrator, operator or viewer)\n"
           "       mw-device --fixed-body FILE [--listen ADDR] [--port N]\n";
}

bool parse_options(int argc, char **argv, Options *options, std::string *error)
{
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        if (arg == "--help" || arg == "-h") {
            error->clear();
            return false;
        }
        if (arg == "--require-if-match") {
            options->requireIfMatch = true;
            continue;
        }
        static const char *const kValued[] = {"--listen",   "--port",     "--state",          "--web",
                                              "--threads",  "--timeout",  "--fixed-body",     "--cors",
                                              "--users",    "--tls-cert", "--tls-key",        "--digest-algorithm",
                                              "--lockout-seconds", "--cameras", "--first-id"};
        bool known = false;
        for (const char *name : kValued)
            known = known || arg == name;
        if (!known) {
            *error = "unknown option " + arg;
            return false;
        }
        if (i + 1 >= argc) {
            *error = arg + " wants a value";
            return false;
        }
        const char *value = argv[++i];
        if (arg == "--port") {
            if (!number(value, 0, 65535, &options->port)) {
                *error = "--port wants a number from 0 to 65535, not \"" + std::string(value) + "\"";
                return false;
            }
        } else if (arg == "--threads") {
            if (!number(value, 1, 256, &options->threads)) {
                *error = "--threads wants a number from 1 to 256, not \"" + std::string(value) + "\"";
                return false;
            }
            options->threadsGiven = true;
        } else if (arg == "--cameras") {
            if (!number(value, 1, kMaxCameras, &options->cameras)) {
                *error = "--cameras wants a number from 1 to " + std::to_string(kMaxCameras) + ", not \"" +
                         std::string(value) + "\"";
                return false;
            }
        } else if (arg == "--first-id") {
            if (!number(value, 1, kMaxCameraId, &options->firstId)) {
                *error = "--first-id wants a number from 1 to " + std::to_string(kMaxCameraId) + ", not \"" +
                         std::string(value) + "\"";
                return false;
            }
        } else if (arg == "--timeout") {
            if (!number(value, 0, 86400, &options->timeout)) {
                *error = "--timeout wants seconds from 0 to 86400, not \"" + std::string(value) + "\"";
                return false;
            }
        } else if (arg == "--cors") {
            if (!origin(value)) {
                *error = "--cors wants an origin such as http://127.0.0.1:5173, not \"" + std::string(value) + "\"";
                return false;
            }
            options->corsOrigins.push_back(value);
        } else if (arg == "--lockout-seconds") {
            if (!number(value, 1, 86400, &options->lockoutSeconds)) {
                *error = "--lockout-seconds wants seconds from 1 to 86400, not \"" + std::string(value) + "\"";
                return false;
            }
        } else if (arg == "--digest-algorithm") {
            if (strcmp(value, "sha256") != 0 && strcmp(value, "md5") != 0) {
                *error = "--digest-algorithm wants sha256 or md5, not \"" + std::string(value) + "\"";
                return false;
            }
            options->digestMd5 = strcmp(value, "md5") == 0;
        } else if (*value == '\0') {
            *error = arg + " wants a value";
            return false;
        } else if (arg == "--listen") {
            options->listen = value;
        } else if (arg == "--state") {
            options->stateDir = value;
        } else if (arg == "--web") {
            options->webDir = value;
        } else if (arg == "--users") {
            options->usersFile = value;
        } else if (arg == "--tls-cert") {
            options->tlsCert = value;
        } else if (arg == "--tls-key") {
            options->tlsKey = value;
        } else {
            options->fixedBody = value;
        }
    }
    if (options->tlsCert.empty() != options->tlsKey.empty()) {
        *error = "--tls-cert and --tls-key go together";
        return false;
    }
    // Camera k listens on --port + k - 1: the ports must be known and exist.
    if (options->cameras > 1 && options->port == 0) {
        *error = "--cameras above 1 wants a --port to count from, not 0";
        return false;
    }
    if (options->port + options->cameras - 1 > 65535) {
        *error = "--cameras " + std::to_string(options->cameras) + " from --port " + std::to_string(options->port) +
                 " runs past port 65535";
        return false;
    }
    if (options->first_id() + options->cameras - 1 > kMaxCameraId) {
        *error = "--first-id " + std::to_string(options->first_id()) + " with --cameras " +
                 std::to_string(options->cameras) + " runs past camera " + std::to_string(kMaxCameraId);
        return false;
    }
    if (!options->fixedBody.empty() && options->cameras > 1) {
        *error = "--fixed-body serves one server, not --cameras";
        return false;
    }
    return true;
}

std::string default_web_dir()
{
    char exe[PATH_MAX];
    const ssize_t n = readlink("/proc/self/exe", exe, sizeof exe - 1);
    if (n > 0) {
        exe[n] = '\0';
        std::string dir = exe;
        dir.resize(dir.rfind('/') + 1);
        const std::string installed = dir + MW_WEB_FROM_BIN;
        if (has_index(installed))
            return installed;
    }
    return MW_WEB_DIR;
}

} // namespace device
