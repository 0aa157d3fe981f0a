#include "http.h"

#include <cjson/cJSON.h>

#include <strings.h>

namespace device {

namespace {

std::vector<std::string> corsOrigins;
bool corsCredentials = false;

std::string json_string(const std::string &text)
{
    cJSON *s = cJSON_CreateString(text.c_str());
    char *printed = cJSON_PrintUnformatted(s);
    std::string out = printed != nullptr ? printed : "\"\"";
    cJSON_free(printed);
    cJSON_Delete(s);
    return out;
}

struct Collect {
    const char *name;
    std::string *out;
    bool found;
};

MHD_Result collect(void *cls, enum MHD_ValueKind, const char *key, const char *value)
{
    Collect *c = static_cast<Collect *>(cls);
    if (key != nullptr && strcasecmp(key, c->name) == 0) {
        if (c->found)
            c->out->append(", ");
        c->out->append(value != nullptr ? value : "");
        c->found = true;
    }
    return MHD_YES;
}

// The request's Origin when --cors named it, else null.
const char *allowed_origin(struct MHD_Connection *connection)
{
    const char *origin = MHD_lookup_connection_value(connection, MHD_HEADER_KIND, "Origin");
    if (origin == nullptr)
        return nullptr;
    for (const std::string &named : corsOrigins) {
        if (named == origin)
            return origin;
    }
    return nullptr;
}

} // namespace

Answer error(unsigned status, const char *why)
{
    return json(status, std::string("{\n\t\"error\":\t") + json_string(why) + "\n}");
}

Answer json(unsigned status, std::string body)
{
    Answer a;
    a.status = status;
    a.body = std::move(body);
    return a;
}

void set_cors_origins(const std::vector<std::string> &origins) { corsOrigins = origins; }
void set_cors_credentials(bool on) { corsCredentials = on; }

bool header_field(struct MHD_Connection *connection, const char *name, std::string *out)
{
    out->clear();
    Collect c{name, out, false};
    MHD_get_connection_values(connection, MHD_HEADER_KIND, collect, &c);
    return c.found;
}

struct MHD_Response *make_response(struct MHD_Connection *connection, const Answer &answer)
{
    struct MHD_Response *response = MHD_create_response_from_buffer(
        answer.body.size(), const_cast<char *>(answer.body.data()), MHD_RESPMEM_MUST_COPY);
    if (response == nullptr)
        return nullptr;
    if (!answer.body.empty())
        MHD_add_response_header(response, MHD_HTTP_HEADER_CONTENT_TYPE, answer.type);
    if (answer.allow != nullptr)
        MHD_add_response_header(response, MHD_HTTP_HEADER_ALLOW, answer.allow);
    if (!answer.etag.empty())
        MHD_add_response_header(response, MHD_HTTP_HEADER_ETAG, answer.etag.c_str());
    if (!corsOrigins.empty()) {
        // The answer differs by origin: caches keep one per origin.
        MHD_add_response_header(response, MHD_HTTP_HEADER_VARY, "Origin");
        if (const char *origin = allowed_origin(connection)) {
            MHD_add_response_header(response, MHD_HTTP_HEADER_ACCESS_CONTROL_ALLOW_ORIGIN, origin);
            MHD_add_response_header(response, MHD_HTTP_HEADER_ACCESS_CONTROL_EXPOSE_HEADERS,
                                    corsCredentials ? "ETag, WWW-Authenticate" : "ETag");
            // A page on a named origin may send the login it holds (and must
            // be allowed to, or the browser drops the answer).
            MHD_add_response_header(response, "Access-Control-Allow-Credentials", "true");
            if (answer.preflight) {
                MHD_add_response_header(response, MHD_HTTP_HEADER_ACCESS_CONTROL_ALLOW_METHODS,
                                        answer.allow != nullptr ? answer.allow : "GET, HEAD");
                MHD_add_response_header(response, MHD_HTTP_HEADER_ACCESS_CONTROL_ALLOW_HEADERS,
                                        corsCredentials ? "Authorization, Content-Type, If-Match, If-None-Match"
                                                        : "Content-Type, If-Match, If-None-Match");
                MHD_add_response_header(response, MHD_HTTP_HEADER_ACCESS_CONTROL_MAX_AGE, "600");
            }
        }
    }
    return response;
}

MHD_Result send(struct MHD_Connection *connection, const Answer &answer)
{
    struct MHD_Response *response = make_response(connection, answer);
    if (response == nullptr)
        return MHD_NO;
    const MHD_Result result = MHD_queue_response(connection, answer.status, response);
    MHD_destroy_response(response);
    return result;
}

std::string printed(cJSON *root)
{
    char *text = cJSON_Print(root);
    std::string out = text != nullptr ? text : "";
    cJSON_free(text);
    cJSON_Delete(root);
    return out;
}

} // namespace device
