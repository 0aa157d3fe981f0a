#include "fleet.h"

#include "http.h"
#include "persistence.h"
#include "routes.h"

#include <cjson/cJSON.h>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/resource.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <mutex>
#include <sys/stat.h>
#include <thread>

namespace device {

struct MHD_Daemon *start_server(const Options &options, unsigned port, unsigned threads, const Security &security,
                                MHD_AccessHandlerCallback handler, void *cls)
{
    struct sockaddr_in address {};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<uint16_t>(port));
    if (inet_pton(AF_INET, options.listen.c_str(), &address.sin_addr) != 1)
        return nullptr;
    // A pool of one thread is no pool: the option is left out (the library
    // warns of it otherwise, once per server).
    struct MHD_OptionItem pool[] = {
        {threads > 1 ? MHD_OPTION_THREAD_POOL_SIZE : MHD_OPTION_END, static_cast<intptr_t>(threads), nullptr},
        {MHD_OPTION_END, 0, nullptr},
    };
    return MHD_start_daemon(
        MHD_USE_INTERNAL_POLLING_THREAD | MHD_USE_EPOLL | MHD_USE_ERROR_LOG | security.flags,
        static_cast<uint16_t>(port), nullptr, nullptr, handler, cls,
        // Digest and TLS options first: they name the logger, which must come first.
        MHD_OPTION_ARRAY, security.options.data(), MHD_OPTION_SOCK_ADDR, reinterpret_cast<struct sockaddr *>(&address),
        MHD_OPTION_ARRAY, pool, MHD_OPTION_CONNECTION_TIMEOUT, options.timeout,
        MHD_OPTION_CONNECTION_LIMIT, 1000u, MHD_OPTION_URI_LOG_CALLBACK, begin_request, nullptr,
        MHD_OPTION_NOTIFY_COMPLETED, end_request, nullptr, MHD_OPTION_END);
}

unsigned bound_port(struct MHD_Daemon *daemon, unsigned asked)
{
    const union MHD_DaemonInfo *bound = MHD_get_daemon_info(daemon, MHD_DAEMON_INFO_BIND_PORT);
    return bound != nullptr ? bound->port : asked;
}

void raise_open_file_limit()
{
    struct rlimit files {};
    if (getrlimit(RLIMIT_NOFILE, &files) == 0 && files.rlim_cur < files.rlim_max) {
        files.rlim_cur = files.rlim_max;
        setrlimit(RLIMIT_NOFILE, &files);
    }
}

std::string fleet_document(const std::vector<std::unique_ptr<Camera>> &cameras)
{
    cJSON *root = cJSON_CreateObject();
    cJSON *list = cJSON_AddArrayToObject(root, "cameras");
    for (const auto &camera : cameras) {
        cJSON *item = cJSON_CreateObject();
        cJSON_AddNumberToObject(item, "id", camera->id());
        cJSON_AddStringToObject(item, "url", camera->url.c_str());
        cJSON_AddStringToObject(item, "mac", camera->identity().mac.c_str());
        cJSON_AddStringToObject(item, "serial", camera->identity().serial.c_str());
        cJSON_AddItemToArray(list, item);
    }
    return printed(root);
}

bool Fleet::start(const Options &options, const Security &security, std::string *why)
{
    const bool fleet = options.fleet();
    if (fleet && !options.stateDir.empty() && mkdir(options.stateDir.c_str(), 0755) != 0 && errno != EEXIST) {
        *why = "cannot make " + options.stateDir + ": " + strerror(errno);
        return false;
    }
    // Cameras are made and their saved pages applied by as many workers as
    // there are processors: a full state folder is parsed page by page.
    cameras_.resize(options.cameras);
    std::atomic<unsigned> next{0};
    std::mutex failing;
    std::string failure;
    auto work = [&] {
        for (unsigned k = next++; k < options.cameras; k = next++) {
            const unsigned id = options.first_id() + k;
            std::string dir = fleet ? camera_state_dir(options.stateDir, id) : options.stateDir;
            auto camera = std::make_unique<Camera>(id, fleet, std::move(dir));
            std::string problem;
            if (!prepare_state_dir(*camera, &problem)) {
                std::lock_guard<std::mutex> hold(failing);
                failure = problem;
                continue;
            }
            if (saving(*camera))
                restore(*camera);
            cameras_[k] = std::move(camera);
        }
    };
    const unsigned workers = std::max(1u, std::min(options.cameras, std::thread::hardware_concurrency()));
    std::vector<std::thread> crew;
    for (unsigned w = 1; w < workers; ++w)
        crew.emplace_back(work);
    work();
    for (std::thread &t : crew)
        t.join();
    if (!failure.empty()) {
        *why = failure;
        return false;
    }

    // One thread per camera in a fleet unless --threads says otherwise: a
    // thousand cameras are a thousand threads, not four thousand.
    const unsigned threads = fleet && !options.threadsGiven ? 1 : options.threads;
    for (unsigned k = 0; k < options.cameras; ++k) {
        Camera &camera = *cameras_[k];
        const unsigned port = options.port == 0 ? 0 : options.port + k;
        struct MHD_Daemon *daemon = start_server(options, port, threads, security, handle, &camera);
        if (daemon == nullptr) {
            *why = "cannot listen on " + options.listen + ":" + std::to_string(port);
            return false;
        }
        daemons_.push_back(daemon);
        camera.url = std::string(security.scheme) + "://" + options.listen + ":" + std::to_string(bound_port(daemon, port));
        if (k == 0)
            firstPort_ = bound_port(daemon, port);
    }
    document_ = fleet_document(cameras_);
    cameras_[0]->fleetDocument.store(&document_);
    return true;
}

void Fleet::stop()
{
    for (struct MHD_Daemon *daemon : daemons_)
        MHD_stop_daemon(daemon);
    daemons_.clear();
}

} // namespace device
