/*
 * mw-device - a camera's web server in miniature: every catalog page served
 * over HTTP with libmicrohttpd, as the firmware serves it.
 *
 *   mw-device [--listen ADDR] [--port N] [--state DIR] [--web DIR]
 *             [--threads N] [--timeout SECONDS] [--cors ORIGIN]... [--require-if-match]
 *             [--users FILE [--digest-algorithm sha256|md5] [--lockout-seconds N]]
 *             [--tls-cert FILE --tls-key FILE]
 *   mw-device --add-user FILE NAME ROLE
 *             [--cameras N] [--first-id K]
 *   mw-device --fixed-body FILE [--listen ADDR] [--port N]
 *
 * The routes are in routes.h. Each page holds one live state (its records),
 * starting from the catalog's sample (pages.h); with --state DIR an accepted
 * set is saved before it is answered and the saved documents are applied
 * again at start (persistence.h). --cors ORIGIN lets a page served from that
 * origin call the simulator; --require-if-match refuses set requests without
 * If-Match (428). --users FILE asks every /api request for Digest credentials
 * of an account in FILE and checks its role (auth.h); without it only a
 * loopback address is served. --tls-cert and --tls-key serve HTTPS.
 *
 * --cameras N serves N cameras from one process, camera k on port
 * --port + k - 1, each with its own identity and pages (camera.h, fleet.h);
 * --first-id K numbers them from K, so that several processes serve
 * cameras that never share an identity.
 *
 * --fixed-body FILE answers every request with the file's bytes through the
 * same server set-up: the yardstick of the load test.
 */
#include "fleet.h"
#include "http.h"
#include "options.h"
#include "pages.h"
#include "persistence.h"
#include "routes.h"
#include "security.h"

#include <microhttpd.h>

#include <arpa/inet.h>
#include <pthread.h>
#include <signal.h>

#include <cstdio>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string>

namespace {

std::string fixedBody;

MHD_Result handle_fixed(void *, struct MHD_Connection *connection, const char *, const char *, const char *,
                        const char *, size_t *uploadSize, void **context)
{
    // The same request protocol as the pages: header fields first, then the
    // body, then the answer.
    device::Request *request = static_cast<device::Request *>(*context);
    if (request != nullptr && !request->headersSeen) {
        request->headersSeen = true;
        return MHD_YES;
    }
    if (*uploadSize != 0) {
        *uploadSize = 0;
        return MHD_YES;
    }
    return device::send(connection, device::json(MHD_HTTP_OK, fixedBody));
}

} // namespace

int main(int argc, char **argv)
{
    if (argc > 1 && strcmp(argv[1], "--add-user") == 0)
        return device::add_user_command(argc, argv);
    device::Options options;
    std::string why;
    if (!device::parse_options(argc, argv, &options, &why)) {
        if (why.empty()) {
            fputs(device::usage_text(), stdout);
            return 0;
        }
        fprintf(stderr, "mw-device: %s\n%s", why.c_str(), device::usage_text());
        return 2;
    }
    signal(SIGPIPE, SIG_IGN);
    // The server's threads inherit this mask: SIGINT and SIGTERM reach the
    // main thread's sigwait alone.
    sigset_t stop;
    sigemptyset(&stop);
    sigaddset(&stop, SIGINT);
    sigaddset(&stop, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &stop, nullptr);

    struct in_addr parsed {};
    if (inet_pton(AF_INET, options.listen.c_str(), &parsed) != 1) {
        fprintf(stderr, "mw-device: not an IPv4 address: %s\n", options.listen.c_str());
        return 2;
    }
    device::raise_open_file_limit();
    device::Security security;
    security.options = {{MHD_OPTION_END, 0, nullptr}};
    device::Fleet fleet;
    struct MHD_Daemon *daemon = nullptr;
    unsigned port = options.port;
    if (!options.fixedBody.empty()) {
        std::ifstream in(options.fixedBody, std::ios::binary);
        if (!in) {
            fprintf(stderr, "mw-device: cannot read %s\n", options.fixedBody.c_str());
            return 1;
        }
        std::stringstream text;
        text << in.rdbuf();
        fixedBody = text.str();
        daemon = device::start_server(options, options.port, options.threads, security, handle_fixed, nullptr);
        if (daemon == nullptr) {
            fprintf(stderr, "mw-device: cannot listen on %s:%u\n", options.listen.c_str(), options.port);
            return 1;
        }
        port = device::bound_port(daemon, options.port);
    } else {
        device::load_pages();
        device::RouteSettings routes;
        routes.webDir = options.webDir.empty() ? device::default_web_dir() : options.webDir;
        routes.requireIfMatch = options.requireIfMatch;
        device::set_routes(routes);
        device::set_cors_origins(options.corsOrigins);
        int status = 0;
        if (!device::prepare_security(options, &security, &why, &status)) {
            fprintf(stderr, "mw-device: %s\n", why.c_str());
            return status;
        }
        if (!fleet.start(options, security, &why)) {
            fprintf(stderr, "mw-device: %s\n", why.c_str());
            return 1;
        }
        port = fleet.first_port();
    }
    printf("mw-device: %s://%s:%u/\n", security.scheme, options.listen.c_str(), port);
    if (options.cameras > 1)
        printf("mw-device: %u cameras on ports %u to %u, listed at %s://%s:%u/fleet\n", options.cameras, port,
               port + options.cameras - 1, security.scheme, options.listen.c_str(), port);
    fflush(stdout);
    int received = 0;
    sigwait(&stop, &received);
    if (daemon != nullptr)
        MHD_stop_daemon(daemon);
    fleet.stop();
    return 0;
}
