/*
 * The routes of mw-device (the index at /api lists every page with its path):
 *
 *   GET  /                         the browser page (web/index.html, app.js, style.css)
 *   GET  /api                      {"pages": [{"name", "path", "group", "settable", "description"[, "argument"]}]}
 *   GET  /api/<page>?format=json   the page's document (200, with its ETag)
 *   POST /api/<page>?format=json   a set request: 200 and {"setState": "succeed"} with the page's new ETag,
 *                                  400 and {"<key path>": "format error"}; 405 (Allow: GET, HEAD) on a
 *                                  read-only page; 412 when If-Match names a tag that is no longer
 *                                  current; 428 without If-Match under --require-if-match
 *   GET  /api/<page>/schema        the page's JSON Schema
 *   GET  /fleet                    on the first camera: {"cameras": [{"id", "url", "mac", "serial"}]}
 *
 * HEAD answers wherever GET does, with the same status and header fields and
 * no body; OPTIONS answers 204 with Allow (and, for an origin named with
 * --cors, the preflight fields). Every 200 answer to a GET carries a strong
 * ETag of its body, and If-None-Match with a current tag answers 304.
 * A query without "format=json" is answered 400 {"format": "format error"}.
 * Pages with a selector or a count take it as a query parameter named in the
 * index ("eventType", "count", ...). Unknown paths 404, other methods 405,
 * bodies over 64 KiB 413.
 */
#pragma once

#include <microhttpd.h>

#include <cstddef>
#include <string>

namespace device {

struct RouteSettings {
    std::string webDir;
    bool requireIfMatch = false;
};

void set_routes(const RouteSettings &settings);

// A request as it comes in, over the calls libmicrohttpd makes for it.
struct Request {
    std::string uri; // as the client sent it, query included
    std::string body;
    bool tooLarge = false;
    bool headersSeen = false; // the first call brings the header fields alone
};

// libmicrohttpd's callbacks: the URI as sent (a Request begins), the
// request's answer, and its end (the Request is released). The answer's
// `cls` is the Camera the server belongs to.
void *begin_request(void *, const char *uri, struct MHD_Connection *);
MHD_Result handle(void *, struct MHD_Connection *connection, const char *url, const char *method, const char *,
                  const char *upload, size_t *uploadSize, void **context);
void end_request(void *, struct MHD_Connection *, void **context, enum MHD_RequestTerminationCode);

} // namespace device
