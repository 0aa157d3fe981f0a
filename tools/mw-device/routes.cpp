#include "routes.h"

#include "auth.h"
#include "camera.h"
#include "conditional.h"
#include "http.h"
#include "pages.h"
#include "persistence.h"

#include "openapi.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <fstream>
#include <sstream>

namespace device {

namespace {

constexpr size_t kMaxBody = 64 * 1024;
constexpr unsigned kTooLarge = 413;

RouteSettings settings;

/* ---- documents served whole at a fixed path ---- */

// The index lists the pages; the OpenAPI document describes every route. It
// is made once, at the first request for it (a quarter of a second).
// Both are the same for every camera. The fleet's list is served by the
// first camera alone.
const std::string &openapi_document(const Camera &)
{
    static const std::string text = openapi::openapi_json();
    return text;
}

const std::string &index_of(const Camera &) { return index_document(); }

const std::string &fleet_of(const Camera &camera) { return *camera.fleetDocument.load(); }

struct DocumentRoute {
    const char *path;
    const std::string &(*document)(const Camera &);
    bool firstCameraOnly;
};
const DocumentRoute kDocumentRoutes[] = {
    {"/api", index_of, false},
    {"/api/", index_of, false},
    {"/api/openapi.json", openapi_document, false},
    {"/fleet", fleet_of, true},
};

/* ---- the browser page ---- */

struct StaticFile {
    const char *url, *file, *type;
};
const StaticFile kFiles[] = {
    {"/", "index.html", "text/html; charset=utf-8"},
    {"/index.html", "index.html", "text/html; charset=utf-8"},
    {"/app.js", "app.js", "text/javascript; charset=utf-8"},
    {"/style.css", "style.css", "text/css; charset=utf-8"},
};

/* ---- what a path names ---- */

struct Target {
    enum Kind { unknown, a_file, a_document, a_page, a_schema } kind = unknown;
    const StaticFile *file = nullptr;
    const DocumentRoute *document = nullptr;
    Page *page = nullptr;
};

Target locate(Camera &camera, const std::string &path)
{
    Target t;
    for (const StaticFile &f : kFiles) {
        if (path == f.url) {
            t.kind = Target::a_file;
            t.file = &f;
            return t;
        }
    }
    for (const DocumentRoute &d : kDocumentRoutes) {
        if (path == d.path && (!d.firstCameraOnly || camera.fleetDocument.load() != nullptr)) {
            t.kind = Target::a_document;
            t.document = &d;
            return t;
        }
    }
    std::string key = path;
    const std::string suffix = "/schema";
    const bool schema =
        key.size() > suffix.size() && key.compare(key.size() - suffix.size(), suffix.size(), suffix) == 0;
    if (schema)
        key.resize(key.size() - suffix.size());
    t.page = camera.find(key);
    if (t.page != nullptr)
        t.kind = schema ? Target::a_schema : Target::a_page;
    return t;
}

const char *methods_of(const Target &t)
{
    return t.kind == Target::a_page && t.page->entry->page->set != nullptr ? "GET, HEAD, POST" : "GET, HEAD";
}

/* ---- reading the request ---- */

std::string query_of(const Request &request)
{
    const size_t mark = request.uri.find('?');
    return mark == std::string::npos ? "" : request.uri.substr(mark + 1);
}

Selection selection_of(struct MHD_Connection *connection, const Page &page)
{
    Selection s;
    const char *name = page.entry->page->argumentName;
    if (name == nullptr)
        return s;
    const char *text = MHD_lookup_connection_value(connection, MHD_GET_ARGUMENT_KIND, name);
    if (text == nullptr)
        return s;
    char *end = nullptr;
    errno = 0;
    const long v = strtol(text, &end, 10);
    if (*text == '\0' || *end != '\0' || errno != 0 || v < INT32_MIN || v > INT32_MAX) {
        s.kind = Selection::bad;
        return s;
    }
    s.kind = Selection::given;
    s.value = static_cast<int32_t>(v);
    return s;
}

struct Conditions {
    bool hasIfMatch = false, hasIfNoneMatch = false;
    std::string ifMatch, ifNoneMatch;

    explicit Conditions(struct MHD_Connection *connection)
    {
        hasIfMatch = header_field(connection, "If-Match", &ifMatch);
        hasIfNoneMatch = header_field(connection, "If-None-Match", &ifNoneMatch);
    }
    Precondition against(const std::string &tag, bool safe) const
    {
        return evaluate(hasIfMatch ? ifMatch.c_str() : nullptr, hasIfNoneMatch ? ifNoneMatch.c_str() : nullptr,
                        tag, safe);
    }
};

/* ---- answers ---- */

Answer changed_since() { return error(MHD_HTTP_PRECONDITION_FAILED, "the page changed since its tag was taken"); }

// A GET's 200 answer with the tag of its body; the request's preconditions
// may turn it into 304 (no body) or 412.
Answer conditional_get(struct MHD_Connection *connection, Answer ok)
{
    ok.etag = entity_tag(ok.body);
    switch (Conditions(connection).against(ok.etag, true)) {
    case Precondition::not_modified: {
        Answer a;
        a.status = MHD_HTTP_NOT_MODIFIED;
        a.etag = ok.etag;
        return a;
    }
    case Precondition::failed:
        return changed_since();
    case Precondition::proceed:
        break;
    }
    return ok;
}

Answer static_file(struct MHD_Connection *connection, const StaticFile &f)
{
    std::ifstream in(settings.webDir + "/" + f.file, std::ios::binary);
    if (!in)
        return error(MHD_HTTP_NOT_FOUND, "no such page");
    std::stringstream text;
    text << in.rdbuf();
    Answer a = json(MHD_HTTP_OK, text.str());
    a.type = f.type;
    return conditional_get(connection, std::move(a));
}

Answer refused_render(const Page &page, Rendered why)
{
    if (why == Rendered::bad_argument) // a selector with no slot: the page refuses it
        return json(MHD_HTTP_BAD_REQUEST, format_error(page.entry->page->argumentName));
    return error(MHD_HTTP_INTERNAL_SERVER_ERROR, "the page could not be rendered");
}

Answer get_page(struct MHD_Connection *connection, Page &page, bool schema, const Request &request)
{
    if (!schema && !zk_check_format_json(query_of(request).c_str()))
        return json(MHD_HTTP_BAD_REQUEST, format_error("format"));
    const Selection selection = selection_of(connection, page);
    if (selection.kind == Selection::bad)
        return json(MHD_HTTP_BAD_REQUEST, format_error(page.entry->page->argumentName));
    std::string document;
    const Rendered r = render(page, snapshot(page), selection, schema, &document);
    if (r != Rendered::ok)
        return refused_render(page, r);
    return conditional_get(connection, json(MHD_HTTP_OK, std::move(document)));
}

// A set request: applied to a copy of the state, which replaces it once it is
// accepted and saved. The page's other readers go on meanwhile from the state
// as it was; only set requests of the same page wait.
Answer post_page(const Camera &camera, struct MHD_Connection *connection, Page &page, const Request &request)
{
    if (request.tooLarge)
        return error(kTooLarge, "the body is over 64 KiB");
    if (!zk_check_format_json(query_of(request).c_str()))
        return json(MHD_HTTP_BAD_REQUEST, format_error("format"));
    const Selection selection = selection_of(connection, page);
    if (selection.kind == Selection::bad)
        return json(MHD_HTTP_BAD_REQUEST, format_error(page.entry->page->argumentName));
    const Conditions conditions(connection);
    if (settings.requireIfMatch && !conditions.hasIfMatch)
        return error(MHD_HTTP_PRECONDITION_REQUIRED, "a set request must carry If-Match with the page's ETag");

    std::lock_guard<std::mutex> oneAtATime(page.writeLock);
    State next = snapshot(page);
    std::string document;
    if (conditions.hasIfMatch || conditions.hasIfNoneMatch) {
        const Rendered r = render(page, next, selection, false, &document);
        if (r != Rendered::ok)
            return refused_render(page, r);
        if (conditions.against(entity_tag(document), false) != Precondition::proceed)
            return changed_since();
    }
    std::string reply;
    if (!apply(page, next, selection, request.body, &reply))
        return json(MHD_HTTP_BAD_REQUEST, reply);
    const bool rendered = render(page, next, selection, false, &document) == Rendered::ok;
    if (saving(camera)) {
        // The saved document is the page as a GET without an argument shows it.
        std::string saved = document;
        const bool ready = selection.kind == Selection::none
                               ? rendered
                               : render(page, next, Selection{}, false, &saved) == Rendered::ok;
        if (!ready || !save(camera, page, saved))
            return json(MHD_HTTP_INTERNAL_SERVER_ERROR, set_failed());
    }
    publish(page, std::move(next));
    Answer a = json(MHD_HTTP_OK, reply);
    if (rendered)
        a.etag = entity_tag(document);
    return a;
}

Answer answer(Camera &camera, struct MHD_Connection *connection, const std::string &verb, const std::string &path,
              const Request &request)
{
    const Target target = locate(camera, path);
    if (target.kind == Target::unknown)
        return error(MHD_HTTP_NOT_FOUND, "no such page");
    const char *allowed = methods_of(target);
    if (verb == "OPTIONS") {
        Answer a;
        a.status = MHD_HTTP_NO_CONTENT;
        a.allow = allowed;
        a.preflight = true;
        return a;
    }
    const bool reading = verb == "GET" || verb == "HEAD";
    const bool settable = target.kind == Target::a_page && target.page->entry->page->set != nullptr;
    if (!reading && !(verb == "POST" && settable)) {
        const char *why = verb == "POST" && target.kind == Target::a_page ? "a read-only page"
                          : settable                                    ? "only GET, HEAD and POST"
                                                                        : "only GET and HEAD";
        Answer a = error(MHD_HTTP_METHOD_NOT_ALLOWED, why);
        a.allow = allowed;
        return a;
    }
    switch (target.kind) {
    case Target::a_file:
        return static_file(connection, *target.file);
    case Target::a_document:
        return conditional_get(connection, json(MHD_HTTP_OK, target.document->document(camera)));
    case Target::a_schema:
        return get_page(connection, *target.page, true, request);
    case Target::a_page:
        if (reading)
            return get_page(connection, *target.page, false, request);
        return post_page(camera, connection, *target.page, request);
    case Target::unknown:
        break;
    }
    return error(MHD_HTTP_NOT_FOUND, "no such page");
}

} // namespace

void set_routes(const RouteSettings &s) { settings = s; }

void *begin_request(void *, const char *uri, struct MHD_Connection *)
{
    Request *r = new Request;
    r->uri = uri != nullptr ? uri : "";
    return r;
}

void end_request(void *, struct MHD_Connection *, void **context, enum MHD_RequestTerminationCode)
{
    delete static_cast<Request *>(*context);
    *context = nullptr;
}

MHD_Result handle(void *cls, struct MHD_Connection *connection, const char *url, const char *method, const char *,
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
    MHD_Result refused = MHD_NO;
    if (!admit(connection, method, url, &refused)) // accounts and roles (auth.h), the same for every camera
        return refused;
    Camera &camera = *static_cast<Camera *>(cls);
    return send(connection, answer(camera, connection, method, url, *request));
}

} // namespace device
