/*
 * mw-device - a camera's web server in miniature: every catalog page served
 * over HTTP with libmicrohttpd, as the firmware serves it.
 *
 *   mw-device [--listen ADDR] [--port N] [--state DIR] [--web DIR]
 *             [--threads N] [--timeout SECONDS] [--cors ORIGIN]... [--require-if-match]
 *             [--users FILE [--digest-algorithm sha256|md5] [--lockout-seconds N]]
 *             [--tls-cert FILE --tls-key FILE]
 *   mw-device --add-user FILE NAME ROLE
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
 * --fixed-body FILE answers every request with the file's bytes through the
 * same server set-up: the yardstick of the load test.
 */
#include "http.h"
#include "options.h"
#include "pages.h"
#include "persistence.h"
#include "routes.h"
#include "security.h"

#include <microhttpd.h>

#include <arpa/inet.h>
#include <netinet/in.h>
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

    MHD_AccessHandlerCallback handler = device::handle;
    device::Security security;
    security.options = {{MHD_OPTION_END, 0, nullptr}};
    if (!options.fixedBody.empty()) {
        std::ifstream in(options.fixedBody, std::ios::binary);
        if (!in) {
            fprintf(stderr, "mw-device: cannot read %s\n", options.fixedBody.c_str());
            return 1;
        }
        std::stringstream text;
        text << in.rdbuf();
        fixedBody = text.str();
        handler = handle_fixed;
    } else {
        device::load_pages();
        device::set_state_dir(options.stateDir);
        if (device::saving())
            device::restore();
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
    }

    struct sockaddr_in address {};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<uint16_t>(options.port));
    if (inet_pton(AF_INET, options.listen.c_str(), &address.sin_addr) != 1) {
        fprintf(stderr, "mw-device: not an IPv4 address: %s\n", options.listen.c_str());
        return 2;
    }
    struct MHD_Daemon *daemon = MHD_start_daemon(
        MHD_USE_INTERNAL_POLLING_THREAD | MHD_USE_EPOLL | MHD_USE_ERROR_LOG | security.flags,
        static_cast<uint16_t>(options.port), nullptr, nullptr, handler, nullptr,
        // Digest and TLS options first: they name the logger, which must come first.
        MHD_OPTION_ARRAY, security.options.data(), MHD_OPTION_SOCK_ADDR, reinterpret_cast<struct sockaddr *>(&address),
        MHD_OPTION_THREAD_POOL_SIZE, options.threads, MHD_OPTION_CONNECTION_TIMEOUT, options.timeout,
        MHD_OPTION_CONNECTION_LIMIT, 1000u, MHD_OPTION_URI_LOG_CALLBACK, device::begin_request, nullptr,
        MHD_OPTION_NOTIFY_COMPLETED, device::end_request, nullptr, MHD_OPTION_END);
    if (daemon == nullptr) {
        fprintf(stderr, "mw-device: cannot listen on %s:%u\n", options.listen.c_str(), options.port);
        return 1;
    }
    const union MHD_DaemonInfo *bound = MHD_get_daemon_info(daemon, MHD_DAEMON_INFO_BIND_PORT);
    printf("mw-device: %s://%s:%u/\n", security.scheme, options.listen.c_str(),
           bound != nullptr ? bound->port : static_cast<unsigned>(options.port));
    fflush(stdout);
    int received = 0;
    sigwait(&stop, &received);
    MHD_stop_daemon(daemon);
    return 0;
}
