/*
 * Answers as they go out: status, body and headers, the cross-origin headers
 * for the origins named with --cors, and request header fields.
 */
#pragma once

#include <cjson/cJSON.h>
#include <microhttpd.h>

#include <string>
#include <vector>

namespace device {

struct Answer {
    unsigned status = MHD_HTTP_OK;
    std::string body;
    const char *type = "application/json";
    const char *allow = nullptr; // the Allow field of a 405 or an OPTIONS answer
    std::string etag;            // the ETag field, when the answer carries one
    bool preflight = false;      // an OPTIONS answer: the CORS preflight fields too
};

// An answer with a short JSON error body: {"error": "<why>"}.
Answer error(unsigned status, const char *why);
Answer json(unsigned status, std::string body);

// The origins answered with CORS fields; others get none.
void set_cors_origins(const std::vector<std::string> &origins);
// Named origins may send credentials; with accounts their answers also
// expose WWW-Authenticate and preflights allow the Authorization field.
void set_cors_credentials(bool on);

// Every line of the request's header field `name`, joined with ", " (a list
// field may come in several lines). False when the request has none.
bool header_field(struct MHD_Connection *connection, const char *name, std::string *out);

// The answer as a response with its header fields, for the caller to queue
// (or null when out of memory).
struct MHD_Response *make_response(struct MHD_Connection *connection, const Answer &answer);
MHD_Result send(struct MHD_Connection *connection, const Answer &answer);

// A document the simulator makes of its own (the index, the fleet's list),
// printed as the library prints its documents; `root` is released.
std::string printed(cJSON *root);

} // namespace device
