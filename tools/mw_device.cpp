/*
 * mw-device - a camera's web server in miniature: every catalog page served
 * over HTTP with libmicrohttpd, as the firmware serves it.
 *
 *   mw-device [--listen ADDR] [--port N] [--state DIR] [--web DIR]
 *             [--threads N] [--timeout SECONDS]
 *   mw-device --fixed-body FILE [--listen ADDR] [--port N]
 *
 * Routes (the index at /api lists every page with its path):
 *   GET  /                         the browser page (web/index.html)
 *   GET  /api                      {"pages": [{"name", "path", "group", "settable", "description"[, "argument"]}]}
 *   GET  /api/<page>?format=json   the page's document (200)
 *   POST /api/<page>?format=json   a set request: 200 and {"setState": "succeed"}, or 400 and
 *                                  {"<key path>": "format error"}; 405 (Allow: GET) for a read-only page
 *   GET  /api/<page>/schema        the page's JSON Schema
 * A query without "format=json" is answered 400 {"format": "format error"}.
 * Pages with a selector or a count take it as a query parameter named in the
 * index ("eventType", "count", ...). Unknown paths 404, other methods 405,
 * bodies over 64 KiB 413.
 *
 * Each page holds one live state (its records), starting from the catalog's
 * sample, behind a lock of its own; a GET renders a copy taken under the lock.
 * With --state DIR an accepted set saves the page's rendered document before
 * the reply goes out, and the saved documents are applied again at start.
 *
 * --fixed-body FILE answers every request with the file's bytes through the
 * same server set-up: the yardstick of the load test.
 */
#include "catalog.h"

#include <microhttpd.h>

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <pthread.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <map>
#include <memory>
#include <mutex>
#include <sstream>
#include <string>
#include <vector>

namespace {

constexpr size_t kMaxBody = 64 * 1024;
constexpr int32_t kRenderBuffer = 1 << 20;
constexpr unsigned int kTooLarge = 413;

/* ---- the pages ---- */

struct Page {
    const CatalogEntry *entry;
    std::string group;
    std::string path; // "/api/ptz_presets"
    std::mutex lock;
    std::vector<unsigned char> state;
};

std::vector<std::unique_ptr<Page>> pages;
std::map<std::string, Page *> byPath;
std::string stateDir;
std::string webDir;

// "get_ptz_presets_json" -> "ptz_presets"; "ware_get_auto_export_json" -> "auto_export".
std::string resource_of(const char *name)
{
    std::string s = name;
    for (const char *prefix : {"ware_get_", "get_"}) {
        if (s.rfind(prefix, 0) == 0) {
            s = s.substr(strlen(prefix));
            break;
        }
    }
    if (s.size() > 5 && s.compare(s.size() - 5, 5, "_json") == 0)
        s.resize(s.size() - 5);
    return s;
}

std::string json_string(const std::string &text)
{
    cJSON *s = cJSON_CreateString(text.c_str());
    char *printed = cJSON_PrintUnformatted(s);
    std::string out = printed != nullptr ? printed : "\"\"";
    cJSON_free(printed);
    cJSON_Delete(s);
    return out;
}

std::string index_document()
{
    cJSON *root = cJSON_CreateObject();
    cJSON *list = cJSON_AddArrayToObject(root, "pages");
    for (const auto &page : pages) {
        cJSON *item = cJSON_CreateObject();
        cJSON_AddStringToObject(item, "name", page->entry->name);
        cJSON_AddStringToObject(item, "path", page->path.c_str());
        cJSON_AddStringToObject(item, "group", page->group.c_str());
        cJSON_AddBoolToObject(item, "settable", page->entry->page->set != nullptr);
        cJSON_AddStringToObject(item, "description", page->entry->description);
        if (const char *why = catalog_read_only(*page->entry))
            cJSON_AddStringToObject(item, "readOnly", why);
        if (page->entry->page->argumentName != nullptr)
            cJSON_AddStringToObject(item, "argument", page->entry->page->argumentName);
        cJSON_AddItemToArray(list, item);
    }
    char *text = cJSON_Print(root);
    std::string out = text;
    cJSON_free(text);
    cJSON_Delete(root);
    return out;
}

std::string index_text;

/* ---- persistence ---- */

std::string saved_path(const Page &page) { return stateDir + "/" + page.entry->name + ".json"; }

// Writes the page's document where a crash cannot leave it half written: a
// temporary file, flushed, renamed over the old one, the folder flushed.
bool save(const Page &page, const std::string &document)
{
    const std::string target = saved_path(page);
    const std::string temporary = target + ".tmp";
    const int fd = open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0)
        return false;
    size_t done = 0;
    while (done < document.size()) {
        const ssize_t n = write(fd, document.data() + done, document.size() - done);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0) {
            close(fd);
            return false;
        }
        done += static_cast<size_t>(n);
    }
    if (fsync(fd) != 0 || close(fd) != 0 || rename(temporary.c_str(), target.c_str()) != 0)
        return false;
    const int dir = open(stateDir.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (dir < 0)
        return false;
    const bool synced = fsync(dir) == 0;
    close(dir);
    return synced;
}

// Leaves out of `doc` every member its schema marks read-only, through nested
// objects and list elements: what a set request may carry back.
void strip_read_only(cJSON *doc, const cJSON *schema)
{
    if (cJSON_IsObject(doc)) {
        const cJSON *properties = cJSON_GetObjectItemCaseSensitive(schema, "properties");
        cJSON *member = doc->child;
        while (member != nullptr) {
            cJSON *next = member->next;
            const cJSON *described = cJSON_GetObjectItemCaseSensitive(properties, member->string);
            if (cJSON_IsTrue(cJSON_GetObjectItemCaseSensitive(described, "readOnly")))
                cJSON_Delete(cJSON_DetachItemViaPointer(doc, member));
            else
                strip_read_only(member, described);
            member = next;
        }
    } else if (cJSON_IsArray(doc)) {
        const cJSON *items = cJSON_GetObjectItemCaseSensitive(schema, "prefixItems");
        int position = 0;
        for (cJSON *e = doc->child; e != nullptr; e = e->next, ++position)
            strip_read_only(e, cJSON_GetArrayItem(items, position));
    }
}

// Applies the saved documents through the set functions. A document that no
// longer applies is reported and its page keeps the sample.
void restore()
{
    std::vector<char> out(kRenderBuffer);
    for (const auto &page : pages) {
        const PageOps &ops = *page->entry->page;
        std::ifstream in(saved_path(*page), std::ios::binary);
        if (!in || ops.set == nullptr)
            continue;
        std::stringstream text;
        text << in.rdbuf();
        cJSON *doc = cJSON_Parse(text.str().c_str());
        std::string why;
        if (doc == nullptr || ops.schema(page->state.data(), out.data(), kRenderBuffer) != 0) {
            why = "not a JSON document";
        } else {
            cJSON *schema = cJSON_Parse(out.data());
            strip_read_only(doc, schema);
            cJSON_Delete(schema);
            char *body = cJSON_PrintUnformatted(doc);
            std::vector<unsigned char> before = page->state;
            if (ops.set(page->state.data(), body, static_cast<int32_t>(strlen(body)), out.data(), kRenderBuffer) != 0) {
                why = out.data();
                page->state = before;
            }
            cJSON_free(body);
        }
        cJSON_Delete(doc);
        if (!why.empty()) {
            for (char &c : why)
                c = c == '\n' || c == '\t' ? ' ' : c;
            fprintf(stderr, "mw-device: the saved %s no longer applies (%s): it starts from its sample\n",
                    page->entry->name, why.c_str());
        }
    }
}

/* ---- answering ---- */

struct Request {
    std::string uri; // as the client sent it, query included
    std::string body;
    bool tooLarge = false;
    bool headersSeen = false; // the first call brings the headers alone
};

void *log_uri(void *, const char *uri, struct MHD_Connection *)
{
    Request *r = new Request;
    r->uri = uri != nullptr ? uri : "";
    return r;
}

void completed(void *, struct MHD_Connection *, void **context, enum MHD_RequestTerminationCode)
{
    delete static_cast<Request *>(*context);
    *context = nullptr;
}

MHD_Result reply(struct MHD_Connection *connection, unsigned int status, const std::string &body,
                 const char *type = "application/json", const char *allow = nullptr)
{
    struct MHD_Response *response =
        MHD_create_response_from_buffer(body.size(), const_cast<char *>(body.data()), MHD_RESPMEM_MUST_COPY);
    if (response == nullptr)
        return MHD_NO;
    MHD_add_response_header(response, MHD_HTTP_HEADER_CONTENT_TYPE, type);
    if (allow != nullptr)
        MHD_add_response_header(response, MHD_HTTP_HEADER_ALLOW, allow);
    const MHD_Result result = MHD_queue_response(connection, status, response);
    MHD_destroy_response(response);
    return result;
}

std::string error_body(const char *why) { return std::string("{\n\t\"error\":\t") + json_string(why) + "\n}"; }

thread_local std::vector<char> renderBuffer(kRenderBuffer);

std::string envelope(int32_t (*make)(char *, int32_t))
{
    make(renderBuffer.data(), kRenderBuffer);
    return renderBuffer.data();
}

std::string format_error(const char *key)
{
    zk_return_format_error_json(renderBuffer.data(), kRenderBuffer, key);
    return renderBuffer.data();
}

// The page's argument from the query: absent, a whole number, or refused.
enum class Argument { none, given, bad };
Argument argument_of(struct MHD_Connection *connection, const Page &page, int32_t *value)
{
    const char *name = page.entry->page->argumentName;
    if (name == nullptr)
        return Argument::none;
    const char *text = MHD_lookup_connection_value(connection, MHD_GET_ARGUMENT_KIND, name);
    if (text == nullptr)
        return Argument::none;
    char *end = nullptr;
    errno = 0;
    const long v = strtol(text, &end, 10);
    if (*text == '\0' || *end != '\0' || errno != 0 || v < INT32_MIN || v > INT32_MAX)
        return Argument::bad;
    *value = static_cast<int32_t>(v);
    return Argument::given;
}

std::string read_file(const std::string &path, bool *found)
{
    std::ifstream in(path, std::ios::binary);
    *found = static_cast<bool>(in);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

MHD_Result static_file(struct MHD_Connection *connection, const std::string &url)
{
    struct Kind {
        const char *url, *file, *type;
    };
    static const Kind kFiles[] = {
        {"/", "index.html", "text/html; charset=utf-8"},
        {"/index.html", "index.html", "text/html; charset=utf-8"},
        {"/app.js", "app.js", "text/javascript; charset=utf-8"},
        {"/style.css", "style.css", "text/css; charset=utf-8"},
    };
    for (const Kind &k : kFiles) {
        if (url == k.url) {
            bool found = false;
            const std::string body = read_file(webDir + "/" + k.file, &found);
            if (!found)
                return reply(connection, MHD_HTTP_NOT_FOUND, error_body("no such page"));
            return reply(connection, MHD_HTTP_OK, body, k.type);
        }
    }
    return reply(connection, MHD_HTTP_NOT_FOUND, error_body("no such page"));
}

MHD_Result answer_page(struct MHD_Connection *connection, Page &page, bool schema, const std::string &method,
                       const Request &request)
{
    const PageOps &ops = *page.entry->page;
    const std::string query = request.uri.find('?') != std::string::npos ? request.uri.substr(request.uri.find('?') + 1) : "";
    if (schema) {
        if (method != "GET")
            return reply(connection, MHD_HTTP_METHOD_NOT_ALLOWED, error_body("only GET"), "application/json", "GET");
    } else if (method == "POST" && ops.set == nullptr) {
        return reply(connection, MHD_HTTP_METHOD_NOT_ALLOWED, error_body("a read-only page"), "application/json",
                     "GET");
    } else if (method != "GET" && method != "POST") {
        return reply(connection, MHD_HTTP_METHOD_NOT_ALLOWED, error_body("only GET and POST"), "application/json",
                     ops.set != nullptr ? "GET, POST" : "GET");
    }
    if (!schema && !zk_check_format_json(query.c_str()))
        return reply(connection, MHD_HTTP_BAD_REQUEST, format_error("format"));
    int32_t value = 0;
    const Argument argument = argument_of(connection, page, &value);
    if (argument == Argument::bad)
        return reply(connection, MHD_HTTP_BAD_REQUEST, format_error(ops.argumentName));

    if (method == "GET") {
        std::vector<unsigned char> copy;
        {
            std::lock_guard<std::mutex> hold(page.lock);
            copy = page.state;
        }
        if (argument == Argument::given)
            *ops.argument(copy.data()) = value;
        const int32_t rc = schema ? ops.schema(copy.data(), renderBuffer.data(), kRenderBuffer)
                                  : ops.render(copy.data(), renderBuffer.data(), kRenderBuffer);
        if (rc != 0 && argument == Argument::given) // a selector with no slot: the page refuses it
            return reply(connection, MHD_HTTP_BAD_REQUEST, format_error(ops.argumentName));
        if (rc != 0)
            return reply(connection, MHD_HTTP_INTERNAL_SERVER_ERROR, error_body("the page could not be rendered"));
        return reply(connection, MHD_HTTP_OK, renderBuffer.data());
    }

    // A set request: applied to a copy, which replaces the state once it is
    // accepted (and saved).
    if (request.tooLarge)
        return reply(connection, kTooLarge, error_body("the body is over 64 KiB"));
    std::lock_guard<std::mutex> hold(page.lock);
    std::vector<unsigned char> copy = page.state;
    int32_t kept = 0;
    if (argument == Argument::given) {
        kept = *ops.argument(copy.data());
        *ops.argument(copy.data()) = value;
    }
    const int32_t rc = ops.set(copy.data(), request.body.data(), static_cast<int32_t>(request.body.size()),
                               renderBuffer.data(), kRenderBuffer);
    const std::string answer = renderBuffer.data();
    if (rc != 0)
        return reply(connection, MHD_HTTP_BAD_REQUEST, answer);
    if (argument == Argument::given)
        *ops.argument(copy.data()) = kept; // a request does not move the page's selector
    if (!stateDir.empty()) {
        std::vector<unsigned char> rendered = copy;
        if (ops.render(rendered.data(), renderBuffer.data(), kRenderBuffer) != 0 || !save(page, renderBuffer.data()))
            return reply(connection, MHD_HTTP_INTERNAL_SERVER_ERROR, envelope(zk_return_set_request_faild_json));
    }
    page.state = copy;
    return reply(connection, MHD_HTTP_OK, answer);
}

MHD_Result handle(void *, struct MHD_Connection *connection, const char *url, const char *method, const char *,
                  const char *upload, size_t *uploadSize, void **context)
{
    Request *request = static_cast<Request *>(*context);
    if (request == nullptr) { // no URI seen (cannot happen with the URI callback): start one
        request = new Request;
        request->uri = url;
        *context = request;
    }
    if (!request->headersSeen) {
        request->headersSeen = true;
        return MHD_YES;
    }
    if (*uploadSize != 0) {
        if (request->body.size() + *uploadSize > kMaxBody)
            request->tooLarge = true; // read on, keep nothing
        else
            request->body.append(upload, *uploadSize);
        *uploadSize = 0;
        return MHD_YES;
    }
    const std::string path = url;
    const std::string verb = method;
    if (path.rfind("/api", 0) != 0) {
        if (verb != "GET")
            return reply(connection, MHD_HTTP_METHOD_NOT_ALLOWED, error_body("only GET"), "application/json", "GET");
        return static_file(connection, path);
    }
    if (path == "/api" || path == "/api/") {
        if (verb != "GET")
            return reply(connection, MHD_HTTP_METHOD_NOT_ALLOWED, error_body("only GET"), "application/json", "GET");
        return reply(connection, MHD_HTTP_OK, index_text);
    }
    bool schema = false;
    std::string key = path;
    const std::string suffix = "/schema";
    if (key.size() > suffix.size() && key.compare(key.size() - suffix.size(), suffix.size(), suffix) == 0) {
        schema = true;
        key.resize(key.size() - suffix.size());
    }
    const auto found = byPath.find(key);
    if (found == byPath.end())
        return reply(connection, MHD_HTTP_NOT_FOUND, error_body("no such page"));
    if (request->tooLarge && verb == "POST")
        return reply(connection, kTooLarge, error_body("the body is over 64 KiB"));
    return answer_page(connection, *found->second, schema, verb, *request);
}

/* ---- the fixed-body yardstick ---- */

std::string fixedBody;

MHD_Result handle_fixed(void *, struct MHD_Connection *connection, const char *, const char *, const char *,
                        const char *, size_t *uploadSize, void **context)
{
    // The same request protocol as the pages: headers first, then the body,
    // then the answer.
    Request *request = static_cast<Request *>(*context);
    if (request != nullptr && !request->headersSeen) {
        request->headersSeen = true;
        return MHD_YES;
    }
    if (*uploadSize != 0) {
        *uploadSize = 0;
        return MHD_YES;
    }
    return reply(connection, MHD_HTTP_OK, fixedBody);
}

int usage()
{
    fprintf(stderr, "usage: mw-device [--listen ADDR] [--port N] [--state DIR] [--web DIR] [--threads N] "
                    "[--timeout SECONDS]\n       mw-device --fixed-body FILE [--listen ADDR] [--port N]\n");
    return 2;
}

} // namespace

int main(int argc, char **argv)
{
    std::string listen = "127.0.0.1";
    int port = 8080;
    unsigned threads = 4;
    unsigned timeout = 10;
    std::string fixedFile;
    webDir = MW_WEB_DIR;
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        if (i + 1 >= argc)
            return usage();
        const char *value = argv[++i];
        if (arg == "--listen")
            listen = value;
        else if (arg == "--port")
            port = atoi(value);
        else if (arg == "--state")
            stateDir = value;
        else if (arg == "--web")
            webDir = value;
        else if (arg == "--threads")
            threads = static_cast<unsigned>(atoi(value));
        else if (arg == "--timeout")
            timeout = static_cast<unsigned>(atoi(value));
        else if (arg == "--fixed-body")
            fixedFile = value;
        else
            return usage();
    }
    signal(SIGPIPE, SIG_IGN);
    // The server's threads inherit this mask: SIGINT and SIGTERM reach the
    // main thread's sigwait alone.
    sigset_t stop;
    sigemptyset(&stop);
    sigaddset(&stop, SIGINT);
    sigaddset(&stop, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &stop, nullptr);

    MHD_AccessHandlerCallback handler = handle;
    if (!fixedFile.empty()) {
        bool found = false;
        fixedBody = read_file(fixedFile, &found);
        if (!found) {
            fprintf(stderr, "mw-device: cannot read %s\n", fixedFile.c_str());
            return 1;
        }
        handler = handle_fixed;
    } else {
        for (const CatalogGroup *group : catalog_groups()) {
            for (size_t k = 0; k < group->count; ++k) {
                const CatalogEntry &entry = group->entries[k];
                if (entry.page == nullptr)
                    continue; // the reply envelopes are not pages
                auto page = std::make_unique<Page>();
                page->entry = &entry;
                page->group = group->name;
                page->path = "/api/" + resource_of(entry.name);
                page->state.resize(entry.page->stateSize);
                entry.page->initial(page->state.data());
                byPath[page->path] = page.get();
                pages.push_back(std::move(page));
            }
        }
        index_text = index_document();
        if (!stateDir.empty()) {
            mkdir(stateDir.c_str(), 0755);
            restore();
        }
    }

    struct sockaddr_in address {};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<uint16_t>(port));
    if (inet_pton(AF_INET, listen.c_str(), &address.sin_addr) != 1) {
        fprintf(stderr, "mw-device: not an IPv4 address: %s\n", listen.c_str());
        return 2;
    }
    struct MHD_Daemon *daemon = MHD_start_daemon(
        MHD_USE_INTERNAL_POLLING_THREAD | MHD_USE_EPOLL | MHD_USE_ERROR_LOG, static_cast<uint16_t>(port), nullptr,
        nullptr, handler, nullptr, MHD_OPTION_SOCK_ADDR, reinterpret_cast<struct sockaddr *>(&address),
        MHD_OPTION_THREAD_POOL_SIZE, threads, MHD_OPTION_CONNECTION_TIMEOUT, timeout, MHD_OPTION_CONNECTION_LIMIT,
        1000u, MHD_OPTION_URI_LOG_CALLBACK, log_uri, nullptr, MHD_OPTION_NOTIFY_COMPLETED, completed, nullptr,
        MHD_OPTION_END);
    if (daemon == nullptr) {
        fprintf(stderr, "mw-device: cannot listen on %s:%d\n", listen.c_str(), port);
        return 1;
    }
    const union MHD_DaemonInfo *bound = MHD_get_daemon_info(daemon, MHD_DAEMON_INFO_BIND_PORT);
    printf("mw-device: http://%s:%u/\n", listen.c_str(), bound != nullptr ? bound->port : static_cast<unsigned>(port));
    fflush(stdout);
    int received = 0;
    sigwait(&stop, &received);
    MHD_stop_daemon(daemon);
    return 0;
}
