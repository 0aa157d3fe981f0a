/*
 * openapi.cpp - the OpenAPI 3.1 document of the simulator's HTTP interface,
 * built from the catalog each time: nothing of it is kept by hand.
 *
 * Paths: /api (the index), /api/openapi.json (this document), and for every
 * page /api/<resource> (GET the document; POST a set request on a settable
 * page) and /api/<resource>/schema (the JSON Schema of the state the page is
 * in now). Components: every page's document schema (the schema of every
 * state, see page_schema.cpp) under the page's resource name, the reply
 * envelopes, the index entry, and the shapes pages share: the weekly
 * schedule list and, per alarm-action page, the object of one event type.
 */
#include "openapi.h"

#include <cstring>

#include <map>
#include <string>
#include <vector>

#ifndef MW_VERSION
#error "MW_VERSION (the library's version) is set by the build"
#endif

namespace openapi {

namespace {

constexpr int32_t kBuffer = 4 * 1024 * 1024;
const char *const kDialect = "https://json-schema.org/draft/2020-12/schema";
const char *const kJson = "application/json";

cJSON *member(const cJSON *object, const char *key) { return cJSON_GetObjectItemCaseSensitive(object, key); }

cJSON *reference(const std::string &where)
{
    cJSON *r = cJSON_CreateObject();
    cJSON_AddStringToObject(r, "$ref", where.c_str());
    return r;
}

cJSON *schema_ref(const std::string &name) { return reference("#/components/schemas/" + name); }

cJSON *parse_or_null(const char *text) { return text != nullptr ? cJSON_Parse(text) : nullptr; }

// {"description": ..., "content": {"application/json": {"schema": ..., "example": ...}}}
cJSON *json_reply(const char *description, cJSON *schema, cJSON *example)
{
    cJSON *r = cJSON_CreateObject();
    cJSON_AddStringToObject(r, "description", description);
    cJSON *media = cJSON_CreateObject();
    cJSON_AddItemToObject(media, "schema", schema);
    if (example != nullptr)
        cJSON_AddItemToObject(media, "example", example);
    cJSON_AddItemToObject(cJSON_AddObjectToObject(r, "content"), kJson, media);
    return r;
}

cJSON *text_schema(const char *description)
{
    cJSON *s = cJSON_CreateObject();
    cJSON_AddStringToObject(s, "type", "string");
    if (description != nullptr)
        cJSON_AddStringToObject(s, "description", description);
    return s;
}

cJSON *closed_object(const char *description)
{
    cJSON *s = cJSON_CreateObject();
    cJSON_AddStringToObject(s, "$schema", kDialect);
    cJSON_AddStringToObject(s, "description", description);
    cJSON_AddStringToObject(s, "type", "object");
    cJSON_AddObjectToObject(s, "properties");
    cJSON_AddArrayToObject(s, "required");
    cJSON_AddFalseToObject(s, "additionalProperties");
    return s;
}

void add_property(cJSON *object, const char *key, cJSON *schema, bool required)
{
    cJSON_AddItemToObject(member(object, "properties"), key, schema);
    if (required)
        cJSON_AddItemToArray(member(object, "required"), cJSON_CreateString(key));
}

cJSON *const_text(const char *text)
{
    cJSON *s = cJSON_CreateObject();
    cJSON_AddStringToObject(s, "type", "string");
    cJSON_AddStringToObject(s, "const", text);
    return s;
}

std::string envelope_text(int32_t (*make)(char *, int32_t))
{
    std::vector<char> b(256);
    make(b.data(), static_cast<int32_t>(b.size()));
    return b.data();
}

std::string format_error_text(const char *key)
{
    std::vector<char> b(1024);
    zk_return_format_error_json(b.data(), static_cast<int32_t>(b.size()), key);
    return b.data();
}

/* ---- the shapes pages share ---- */

struct Shared {
    cJSON *schemas;                       // components/schemas
    std::map<std::string, std::string> weeks; // printed schema -> component name
};

// Replaces every weekly "scheduleList" under `schema` with a reference to
// its component, one component per distinct week.
void share_weeks(cJSON *schema, Shared &shared)
{
    cJSON *properties = member(schema, "properties");
    cJSON *p = properties != nullptr ? properties->child : nullptr;
    while (p != nullptr) {
        cJSON *next = p->next;
        if (strcmp(p->string, "scheduleList") == 0 && cJSON_GetArraySize(member(p, "prefixItems")) == 7) {
            char *printed = cJSON_PrintUnformatted(p);
            std::string &name = shared.weeks[printed];
            cJSON_free(printed);
            if (name.empty()) {
                name = shared.weeks.size() == 1 ? "WeeklySchedule"
                                                  : "WeeklySchedule" + std::to_string(shared.weeks.size());
                cJSON *week = cJSON_Duplicate(p, true);
                // Each day pinned to its place by prefixItems; "items" says
                // what any day looks like (for readers of "items" alone).
                cJSON *day = cJSON_Duplicate(cJSON_GetArrayItem(member(week, "prefixItems"), 0), true);
                cJSON *index = member(member(day, "properties"), "scheduleIndex");
                cJSON_DeleteItemFromObjectCaseSensitive(index, "const");
                cJSON_AddNumberToObject(index, "minimum", 0);
                cJSON_AddNumberToObject(index, "maximum", 6);
                cJSON_ReplaceItemInObjectCaseSensitive(week, "items", day);
                cJSON_AddStringToObject(week, "description",
                                        "The week's schedule: seven days, scheduleIndex 0 (Sunday) to 6, each "
                                        "with its time ranges as text.");
                cJSON_AddItemToObject(shared.schemas, name.c_str(), week);
            }
            const std::string key = p->string;
            cJSON_ReplaceItemInObjectCaseSensitive(properties, key.c_str(), schema_ref(name));
        } else {
            share_weeks(p, shared);
        }
        p = next;
    }
    cJSON *c = nullptr;
    cJSON_ArrayForEach(c, member(schema, "prefixItems")) share_weeks(c, shared);
    cJSON_ArrayForEach(c, member(schema, "anyOf")) share_weeks(c, shared);
    if (cJSON_IsObject(member(schema, "items")))
        share_weeks(member(schema, "items"), shared);
}

// On a per-event-type page every member of the document is one event type's
// object, nearly all of one shape (a type may carry a key of its own, as
// motion does its snapshot type): the shape most types share becomes the
// component "<resource>_action" and those types refer to it.
void share_event_type_objects(cJSON *schema, const std::string &resource, Shared &shared)
{
    cJSON *properties = member(schema, "properties");
    const cJSON *common = nullptr;
    int most = 0;
    for (const cJSON *p = properties != nullptr ? properties->child : nullptr; p != nullptr; p = p->next) {
        int alike = 0;
        for (const cJSON *q = properties->child; q != nullptr; q = q->next)
            alike += cJSON_Compare(p, q, true) ? 1 : 0;
        if (alike > most) {
            most = alike;
            common = p;
        }
    }
    if (most < 2)
        return;
    const std::string name = resource + "_action";
    cJSON *shape = cJSON_Duplicate(common, true); // taken before the members it matches are replaced
    for (cJSON *p = properties->child; p != nullptr;) {
        cJSON *next = p->next;
        if (cJSON_Compare(p, shape, true)) {
            const std::string key = p->string;
            cJSON_ReplaceItemInObjectCaseSensitive(properties, key.c_str(), schema_ref(name));
        }
        p = next;
    }
    cJSON_AddStringToObject(shape, "description", "What the camera does when this event type fires.");
    cJSON_AddItemToObject(shared.schemas, name.c_str(), shape);
}

// The schema `schema` stands for, following a reference to a component.
const cJSON *resolved(const cJSON *schema, const cJSON *schemas)
{
    const cJSON *r = member(schema, "$ref");
    const char *prefix = "#/components/schemas/";
    if (cJSON_IsString(r) && strncmp(r->valuestring, prefix, strlen(prefix)) == 0)
        return member(schemas, r->valuestring + strlen(prefix));
    return schema;
}

// Leaves out of a document every member its schema marks read-only, through
// objects and list elements: the set request's example, what a client
// changes (it may send the rest back unchanged, but need not).
void strip_read_only(cJSON *doc, const cJSON *schema, const cJSON *schemas)
{
    schema = resolved(schema, schemas);
    if (cJSON_IsObject(doc)) {
        const cJSON *properties = member(schema, "properties");
        cJSON *m = doc->child;
        while (m != nullptr) {
            cJSON *next = m->next;
            const cJSON *described = resolved(member(properties, m->string), schemas);
            if (cJSON_IsTrue(member(described, "readOnly")))
                cJSON_Delete(cJSON_DetachItemViaPointer(doc, m));
            else
                strip_read_only(m, described, schemas);
            m = next;
        }
    } else if (cJSON_IsArray(doc)) {
        const cJSON *prefix = member(schema, "prefixItems");
        int at = 0;
        for (cJSON *e = doc->child; e != nullptr; e = e->next, ++at) {
            const cJSON *item = at < cJSON_GetArraySize(prefix) ? cJSON_GetArrayItem(prefix, at) : member(schema, "items");
            strip_read_only(e, item, schemas);
        }
    }
}

// The schema of a set request from a page's document schema: every key
// optional (keys left out keep their values), and no key marked readOnly, for
// a client may send the document it read back with its computed keys
// unchanged (the camera refuses them changed, at their key path). Shared
// shapes get their own set variant, "<name>_set".
cJSON *set_schema(const cJSON *schema, cJSON *schemas);

void to_set_schema(cJSON *node, cJSON *schemas)
{
    if (cJSON_IsArray(node)) {
        cJSON *e = nullptr;
        cJSON_ArrayForEach(e, node) to_set_schema(e, schemas);
        return;
    }
    if (!cJSON_IsObject(node))
        return;
    cJSON *r = member(node, "$ref");
    const char *prefix = "#/components/schemas/";
    if (cJSON_IsString(r) && strncmp(r->valuestring, prefix, strlen(prefix)) == 0) {
        const std::string name = std::string(r->valuestring + strlen(prefix)) + "_set";
        if (member(schemas, name.c_str()) == nullptr) {
            cJSON *shared = set_schema(member(schemas, r->valuestring + strlen(prefix)), schemas);
            cJSON_AddItemToObject(schemas, name.c_str(), shared);
        }
        cJSON_SetValuestring(r, ("#/components/schemas/" + name).c_str());
        return;
    }
    if (cJSON_IsTrue(member(node, "readOnly"))) {
        cJSON_DeleteItemFromObjectCaseSensitive(node, "readOnly");
        if (member(node, "description") == nullptr)
            cJSON_AddStringToObject(node, "description", "Computed by the camera: may be sent back unchanged.");
    }
    cJSON_DeleteItemFromObjectCaseSensitive(node, "required");
    for (cJSON *c = node->child; c != nullptr; c = c->next) {
        if (strcmp(c->string, "properties") == 0 || strcmp(c->string, "patternProperties") == 0) {
            cJSON *p = nullptr;
            cJSON_ArrayForEach(p, c) to_set_schema(p, schemas);
        } else if (strcmp(c->string, "items") == 0 || strcmp(c->string, "prefixItems") == 0 ||
                   strcmp(c->string, "anyOf") == 0 || strcmp(c->string, "additionalProperties") == 0) {
            to_set_schema(c, schemas);
        }
    }
}

cJSON *set_schema(const cJSON *schema, cJSON *schemas)
{
    cJSON *out = cJSON_Duplicate(schema, true);
    to_set_schema(out, schemas);
    cJSON_DeleteItemFromObjectCaseSensitive(out, "title");
    cJSON_DeleteItemFromObjectCaseSensitive(out, "description");
    cJSON_AddStringToObject(out, "description",
                            "A set request: the page's document or a part of it. Keys left out keep their values; "
                            "computed keys may be sent back unchanged.");
    return out;
}

/* ---- parameters and replies ---- */

cJSON *format_parameter()
{
    cJSON *p = cJSON_CreateObject();
    cJSON_AddStringToObject(p, "name", "format");
    cJSON_AddStringToObject(p, "in", "query");
    cJSON_AddTrueToObject(p, "required");
    cJSON_AddStringToObject(p, "description",
                            "Must be json: a request without format=json is answered 400 {\"format\": \"format error\"}.");
    cJSON_AddItemToObject(p, "schema", const_text("json"));
    return p;
}

cJSON *header_parameter(const char *name, const char *description)
{
    cJSON *p = cJSON_CreateObject();
    cJSON_AddStringToObject(p, "name", name);
    cJSON_AddStringToObject(p, "in", "header");
    cJSON_AddFalseToObject(p, "required");
    cJSON_AddStringToObject(p, "description", description);
    cJSON_AddItemToObject(p, "schema", text_schema(nullptr));
    return p;
}

// The page's argument as a query parameter, with its range.
cJSON *argument_parameter(const PageOps &ops)
{
    cJSON *p = cJSON_CreateObject();
    cJSON_AddStringToObject(p, "name", ops.argumentName);
    cJSON_AddStringToObject(p, "in", "query");
    cJSON_AddFalseToObject(p, "required");
    const char *what = strcmp(ops.argumentName, "eventType") == 0
                           ? "The event type shown: -1 every type, else one type by its number. Without it the "
                             "page's own selector is used; a request never moves it. Out of range: 400."
                       : strcmp(ops.argumentName, "count") == 0
                           ? "How many entries the page lists (the camera passes no more than it holds). Without "
                             "it the page's own count is used."
                       : strcmp(ops.argumentName, "group") == 0
                           ? "The capability group reported (100 PTZ control to 109 stream preset). Without it the "
                             "page's own group is used."
                           : "The value the page reports instead of its own.";
    cJSON_AddStringToObject(p, "description", what);
    cJSON *s = cJSON_AddObjectToObject(p, "schema");
    cJSON_AddStringToObject(s, "type", "integer");
    cJSON_AddNumberToObject(s, "minimum", ops.argumentMin);
    cJSON_AddNumberToObject(s, "maximum", ops.argumentMax);
    return p;
}

cJSON *header_ref(const char *name) { return reference(std::string("#/components/headers/") + name); }

// The example of the schema route: the shortest schema of a catalog sample.
cJSON *smallest_page_schema()
{
    std::vector<char> buffer(kBuffer);
    std::string best;
    for (const CatalogEntry *entry : catalog_entries()) {
        if (entry->page == nullptr)
            continue;
        std::vector<unsigned char> state(entry->page->stateSize);
        entry->page->initial(state.data());
        if (entry->page->schema(state.data(), buffer.data(), kBuffer) == 0 &&
            (best.empty() || strlen(buffer.data()) < best.size()))
            best = buffer.data();
    }
    return best.empty() ? nullptr : cJSON_Parse(best.c_str());
}

void add_components(cJSON *components, cJSON *schemas)
{
    // Envelopes and shared schemas.
    cJSON *succeed = closed_object("A set request was applied.");
    add_property(succeed, "setState", const_text("succeed"), true);
    cJSON_AddItemToObject(schemas, "SetSucceed", succeed);
    cJSON *failed = closed_object("The request fitted but the camera could not keep it.");
    add_property(failed, "setState", const_text("failed"), true);
    cJSON_AddItemToObject(schemas, "SetFailed", failed);
    cJSON *formatError = cJSON_CreateObject();
    cJSON_AddStringToObject(formatError, "$schema", kDialect);
    cJSON_AddStringToObject(formatError, "description",
                            "A refused request: one member named by its key path (keys joined with '.', list "
                            "elements by their index value in brackets, notifyList[2].url), \"body\" for a body "
                            "that is not a JSON object, \"format\" for a query without format=json, or the "
                            "argument's name.");
    cJSON_AddStringToObject(formatError, "type", "object");
    cJSON_AddNumberToObject(formatError, "minProperties", 1);
    cJSON_AddNumberToObject(formatError, "maxProperties", 1);
    cJSON_AddItemToObject(formatError, "additionalProperties", const_text("format error"));
    cJSON_AddItemToObject(schemas, "FormatError", formatError);
    cJSON *error = closed_object("Why the simulator did not answer the request.");
    add_property(error, "error", text_schema(nullptr), true);
    cJSON_AddItemToObject(schemas, "Error", error);

    cJSON *entry = closed_object("One page of the camera.");
    cJSON_DeleteItemFromObjectCaseSensitive(entry, "$schema");
    add_property(entry, "name", text_schema("the serializer that renders it"), true);
    add_property(entry, "path", text_schema("where it is served, /api/<resource>"), true);
    add_property(entry, "group", text_schema("its group (a tag of this document)"), true);
    cJSON *settable = cJSON_CreateObject();
    cJSON_AddStringToObject(settable, "type", "boolean");
    cJSON_AddStringToObject(settable, "description", "true when the page takes set requests (POST)");
    add_property(entry, "settable", settable, true);
    add_property(entry, "description", text_schema("what the document is"), true);
    add_property(entry, "readOnly", text_schema("why a client cannot write the page (read-only pages only)"), false);
    add_property(entry, "argument", text_schema("the query parameter the page takes, if any"), false);
    cJSON_AddItemToObject(schemas, "IndexEntry", entry);
    cJSON *index = closed_object("Every page the camera serves.");
    cJSON *pages = cJSON_CreateObject();
    cJSON_AddStringToObject(pages, "type", "array");
    cJSON_AddItemToObject(pages, "items", schema_ref("IndexEntry"));
    add_property(index, "pages", pages, true);
    cJSON_AddItemToObject(schemas, "Index", index);

    cJSON *jsonSchema = cJSON_CreateObject();
    cJSON_AddStringToObject(jsonSchema, "$schema", kDialect);
    cJSON_AddStringToObject(jsonSchema, "description",
                            "A JSON Schema (draft 2020-12) of the document the page's state renders now.");
    cJSON_AddStringToObject(jsonSchema, "type", "object");
    cJSON_AddItemToObject(schemas, "JsonSchema", jsonSchema);
    cJSON *document = cJSON_CreateObject();
    cJSON_AddStringToObject(document, "$schema", kDialect);
    cJSON_AddStringToObject(document, "description", "An OpenAPI 3.1 document.");
    cJSON_AddStringToObject(document, "type", "object");
    cJSON *required = cJSON_AddArrayToObject(document, "required");
    cJSON *documentKeys = cJSON_AddObjectToObject(document, "properties");
    for (const char *k : {"openapi", "info", "paths"})
        cJSON_AddItemToArray(required, cJSON_CreateString(k));
    const char *keys[][2] = {{"openapi", "string"}, {"jsonSchemaDialect", "string"}, {"info", "object"},
                             {"servers", "array"},  {"security", "array"},         {"tags", "array"},
                             {"paths", "object"},   {"components", "object"}};
    for (const auto &k : keys) {
        cJSON *key = cJSON_AddObjectToObject(documentKeys, k[0]);
        cJSON_AddStringToObject(key, "type", k[1]);
        if (strcmp(k[1], "array") == 0)
            cJSON_AddObjectToObject(key, "items"); // any element: OpenAPI's own schema says more
    }
    cJSON_AddTrueToObject(document, "additionalProperties");
    cJSON_AddItemToObject(schemas, "OpenApiDocument", document);

    // Headers.
    cJSON *headers = cJSON_AddObjectToObject(components, "headers");
    cJSON *etag = cJSON_CreateObject();
    cJSON_AddStringToObject(etag, "description",
                            "The document's strong entity tag: send it back in If-None-Match (GET) or If-Match "
                            "(POST).");
    cJSON_AddItemToObject(etag, "schema", text_schema(nullptr));
    cJSON_AddItemToObject(headers, "ETag", etag);
    cJSON *allow = cJSON_CreateObject();
    cJSON_AddStringToObject(allow, "description", "The methods the path takes.");
    cJSON_AddTrueToObject(allow, "required");
    cJSON_AddItemToObject(allow, "schema", text_schema(nullptr));
    cJSON_AddItemToObject(headers, "Allow", allow);

    // Parameters.
    cJSON *parameters = cJSON_AddObjectToObject(components, "parameters");
    cJSON_AddItemToObject(parameters, "format", format_parameter());
    cJSON_AddItemToObject(parameters, "If-None-Match",
                          header_parameter("If-None-Match", "An entity tag the client holds: 304 while it is the "
                                                            "document's own."));
    cJSON_AddItemToObject(parameters, "If-Match",
                          header_parameter("If-Match", "The entity tag of the document the client edited: 412 "
                                                       "when the page has changed since."));

    // Replies.
    cJSON *responses = cJSON_AddObjectToObject(components, "responses");
    cJSON *examples = cJSON_CreateObject();
    const char *sampleKeys[][2] = {{"query", "format"}, {"member", "notifyList[2].url"}, {"body", "body"}};
    for (const auto &k : sampleKeys) {
        cJSON *e = cJSON_AddObjectToObject(examples, k[0]);
        cJSON_AddItemToObject(e, "value", parse_or_null(format_error_text(k[1]).c_str()));
    }
    cJSON *badRequest = json_reply("Refused: the member named by its key path (or the query) does not fit; nothing "
                                   "changed.",
                                   schema_ref("FormatError"), nullptr);
    cJSON_AddItemToObject(member(member(badRequest, "content"), kJson), "examples", examples);
    cJSON_AddItemToObject(responses, "FormatError", badRequest);
    cJSON_AddItemToObject(responses, "SetSucceed",
                          json_reply("Applied.", schema_ref("SetSucceed"),
                                     parse_or_null(envelope_text(zk_return_set_request_succeed_json).c_str())));
    cJSON_AddItemToObject(responses, "SetFailed",
                          json_reply("The camera could not keep the new settings (they could not be saved).",
                                     schema_ref("SetFailed"),
                                     parse_or_null(envelope_text(zk_return_set_request_faild_json).c_str())));
    struct Plain {
        const char *name, *description, *example;
        bool allow;
    };
    const Plain plain[] = {
        {"NotFound", "No such page.", "no such page", false},
        {"MethodNotAllowed", "Another method on this path: Allow names the ones it takes.", "only GET", true},
        {"PreconditionFailed", "If-Match names another version of the document: nothing changed.",
         "the page has changed", false},
        {"TooLarge", "The body is over 64 KiB.", "the body is over 64 KiB", false},
        {"PreconditionRequired", "The simulator asks for If-Match on every set request and this one has none.",
         "If-Match required", false},
        {"RenderFailed", "The page could not be rendered.", "the page could not be rendered", false},
    };
    for (const Plain &p : plain) {
        cJSON *example = cJSON_CreateObject();
        cJSON_AddStringToObject(example, "error", p.example);
        cJSON *r = json_reply(p.description, schema_ref("Error"), example);
        if (p.allow)
            cJSON_AddItemToObject(cJSON_AddObjectToObject(r, "headers"), "Allow", header_ref("Allow"));
        cJSON_AddItemToObject(responses, p.name, r);
    }
    cJSON *notModified = cJSON_CreateObject();
    cJSON_AddStringToObject(notModified, "description", "The document is still the one If-None-Match names.");
    cJSON_AddItemToObject(cJSON_AddObjectToObject(notModified, "headers"), "ETag", header_ref("ETag"));
    cJSON_AddItemToObject(responses, "NotModified", notModified);
    cJSON_AddItemToObject(responses, "JsonSchema",
                          json_reply("The page's JSON Schema.", schema_ref("JsonSchema"), smallest_page_schema()));
}

cJSON *response_ref(const char *name) { return reference(std::string("#/components/responses/") + name); }

cJSON *parameter_ref(const char *name) { return reference(std::string("#/components/parameters/") + name); }

cJSON *operation(const std::string &id, const std::string &summary, const std::string &description, const char *tag)
{
    cJSON *o = cJSON_CreateObject();
    cJSON_AddStringToObject(o, "operationId", id.c_str());
    cJSON_AddStringToObject(o, "summary", summary.c_str());
    cJSON_AddStringToObject(o, "description", description.c_str());
    cJSON_AddItemToArray(cJSON_AddArrayToObject(o, "tags"), cJSON_CreateString(tag));
    return o;
}

// A page operation's parameters: "format", the page's argument, and the
// conditional header it takes.
void page_parameters(cJSON *operation, const PageOps &ops, const char *conditional)
{
    cJSON *parameters = cJSON_AddArrayToObject(operation, "parameters");
    cJSON_AddItemToArray(parameters, parameter_ref("format"));
    if (ops.argumentName != nullptr)
        cJSON_AddItemToArray(parameters, argument_parameter(ops));
    cJSON_AddItemToArray(parameters, parameter_ref(conditional));
}

// "get_x_json" -> "set_x_json", "ware_get_x_json" -> "ware_set_x_json".
std::string set_name(const std::string &name)
{
    const size_t at = name.find("get_");
    return name.substr(0, at) + "set_" + name.substr(at + 4);
}

std::string schema_name(const std::string &resource) { return "schema_" + resource + "_json"; }

void add_page(cJSON *paths, const CatalogGroup &group, const CatalogEntry &entry, Shared &shared,
              std::vector<char> &buffer)
{
    const PageOps &ops = *entry.page;
    const std::string resource = resource_of(entry.name);
    cJSON *schema = page_document_schema(entry);
    if (schema == nullptr)
        return;
    if (member(schema, "$schema") == nullptr)
        cJSON_AddStringToObject(schema, "$schema", kDialect);
    share_weeks(schema, shared);
    if (ops.argumentName != nullptr && strcmp(ops.argumentName, "eventType") == 0)
        share_event_type_objects(schema, resource, shared);
    cJSON_AddItemToObject(shared.schemas, resource.c_str(), schema);

    cJSON *sample = nullptr;
    if (entry.render(buffer.data(), kBuffer) == 0)
        sample = cJSON_Parse(buffer.data());

    cJSON *item = cJSON_AddObjectToObject(paths, ("/api/" + resource).c_str());
    const std::string what = entry.description;
    cJSON *get = operation(entry.name, what, "The page's document (" + what + ").", group.name);
    page_parameters(get, ops, "If-None-Match");
    cJSON *responses = cJSON_AddObjectToObject(get, "responses");
    cJSON *ok = json_reply("The page's document.", schema_ref(resource),
                           sample != nullptr ? cJSON_Duplicate(sample, true) : nullptr);
    cJSON_AddItemToObject(cJSON_AddObjectToObject(ok, "headers"), "ETag", header_ref("ETag"));
    cJSON_AddItemToObject(responses, "200", ok);
    cJSON_AddItemToObject(responses, "304", response_ref("NotModified"));
    cJSON_AddItemToObject(responses, "400", response_ref("FormatError"));
    cJSON_AddItemToObject(responses, "405", response_ref("MethodNotAllowed"));
    cJSON_AddItemToObject(responses, "500", response_ref("RenderFailed"));
    cJSON_AddItemToObject(item, "get", get);

    if (ops.set != nullptr) {
        cJSON *post = operation(set_name(entry.name), "Set: " + what,
                                "A set request: the page's document, edited, or a part of it (keys left out keep "
                                "their values; a list element names its slot by its index key). Keys marked "
                                "readOnly may be sent back unchanged. The first member that does not fit refuses "
                                "the whole request, named by its key path.",
                                group.name);
        page_parameters(post, ops, "If-Match");
        cJSON *body = cJSON_AddObjectToObject(post, "requestBody");
        cJSON_AddTrueToObject(body, "required");
        cJSON *media = cJSON_CreateObject();
        cJSON_AddItemToObject(shared.schemas, (resource + "_set").c_str(), set_schema(schema, shared.schemas));
        cJSON_AddItemToObject(media, "schema", schema_ref(resource + "_set"));
        if (sample != nullptr) {
            // The document as read, and the part a client changes.
            cJSON *examples = cJSON_AddObjectToObject(media, "examples");
            cJSON *asRead = cJSON_AddObjectToObject(examples, "document");
            cJSON_AddStringToObject(asRead, "summary", "the document as read, posted back");
            cJSON_AddItemToObject(asRead, "value", cJSON_Duplicate(sample, true));
            cJSON *settable = cJSON_Duplicate(sample, true);
            strip_read_only(settable, schema, shared.schemas);
            cJSON *part = cJSON_AddObjectToObject(examples, "settable");
            cJSON_AddStringToObject(part, "summary", "its settable keys alone");
            cJSON_AddItemToObject(part, "value", settable);
        }
        cJSON_AddItemToObject(cJSON_AddObjectToObject(body, "content"), kJson, media);
        cJSON *postResponses = cJSON_AddObjectToObject(post, "responses");
        cJSON_AddItemToObject(postResponses, "200", response_ref("SetSucceed"));
        cJSON_AddItemToObject(postResponses, "400", response_ref("FormatError"));
        cJSON_AddItemToObject(postResponses, "405", response_ref("MethodNotAllowed"));
        cJSON_AddItemToObject(postResponses, "412", response_ref("PreconditionFailed"));
        cJSON_AddItemToObject(postResponses, "413", response_ref("TooLarge"));
        cJSON_AddItemToObject(postResponses, "428", response_ref("PreconditionRequired"));
        cJSON_AddItemToObject(postResponses, "500", response_ref("SetFailed"));
        cJSON_AddItemToObject(item, "post", post);
    }
    cJSON_Delete(sample);

    cJSON *schemaPath = cJSON_AddObjectToObject(paths, ("/api/" + resource + "/schema").c_str());
    cJSON *schemaGet = operation(schema_name(resource), "Schema: " + what,
                                 "The JSON Schema of the document the page's state renders now (the component " +
                                     resource + " describes every state).",
                                 group.name);
    if (ops.argumentName != nullptr)
        cJSON_AddItemToArray(cJSON_AddArrayToObject(schemaGet, "parameters"), argument_parameter(ops));
    cJSON *schemaResponses = cJSON_AddObjectToObject(schemaGet, "responses");
    cJSON_AddItemToObject(schemaResponses, "200", response_ref("JsonSchema"));
    if (ops.argumentName != nullptr) // the schema route takes no format; only an argument can be refused
        cJSON_AddItemToObject(schemaResponses, "400", response_ref("FormatError"));
    cJSON_AddItemToObject(schemaResponses, "405", response_ref("MethodNotAllowed"));
    cJSON_AddItemToObject(schemaResponses, "500", response_ref("RenderFailed"));
    cJSON_AddItemToObject(schemaPath, "get", schemaGet);
}

const char *group_description(const char *name)
{
    struct Known {
        const char *name, *description;
    };
    static const Known known[] = {
        {"system", "Device information, time, users, maintenance."},
        {"network", "Addresses, services, uploads and links."},
        {"audio_storage", "Audio, storage and recordings."},
        {"traffic", "Traffic and parking pages."},
        {"ptz", "The dome's pan, tilt and zoom."},
        {"camera", "Image, day and night, masks and capability flags."},
        {"video", "Streams and on-screen display."},
        {"event_actions", "What the camera does on each alarm event type."},
        {"event_sources", "What raises an alarm."},
        {"iot_devices", "The gateway's IoT devices."},
        {"iot_actions", "What the IoT alarm rules do."},
        {"capability", "What the camera offers."},
        {"vca", "Video content analysis."},
        {"lpr", "Plate recognition and the speed radar."},
        {"simulator", "The index of the pages and this document."},
    };
    for (const Known &k : known)
        if (strcmp(k.name, name) == 0)
            return k.description;
    return "Pages of this group.";
}

void add_tag(cJSON *tags, const char *name)
{
    cJSON *t = cJSON_CreateObject();
    cJSON_AddStringToObject(t, "name", name);
    cJSON_AddStringToObject(t, "description", group_description(name));
    cJSON_AddItemToArray(tags, t);
}

cJSON *index_example()
{
    cJSON *root = cJSON_CreateObject();
    cJSON *pages = cJSON_AddArrayToObject(root, "pages");
    for (const CatalogGroup *group : catalog_groups()) {
        for (size_t k = 0; k < group->count && cJSON_GetArraySize(pages) < 2; ++k) {
            const CatalogEntry &e = group->entries[k];
            if (e.page == nullptr)
                continue;
            cJSON *item = cJSON_CreateObject();
            cJSON_AddStringToObject(item, "name", e.name);
            cJSON_AddStringToObject(item, "path", ("/api/" + resource_of(e.name)).c_str());
            cJSON_AddStringToObject(item, "group", group->name);
            cJSON_AddBoolToObject(item, "settable", e.page->set != nullptr);
            cJSON_AddStringToObject(item, "description", e.description);
            if (const char *why = catalog_read_only(e))
                cJSON_AddStringToObject(item, "readOnly", why);
            if (e.page->argumentName != nullptr)
                cJSON_AddStringToObject(item, "argument", e.page->argumentName);
            cJSON_AddItemToArray(pages, item);
        }
    }
    return root;
}

// The example of this document's own route: its head, without the paths
// and components (the reply is the document itself).
cJSON *self_example(const cJSON *root)
{
    cJSON *e = cJSON_CreateObject();
    for (const char *k : {"openapi", "jsonSchemaDialect", "info"})
        cJSON_AddItemToObject(e, k, cJSON_Duplicate(member(root, k), true));
    cJSON_AddObjectToObject(e, "paths");
    return e;
}

} // namespace

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

cJSON *document()
{
    cJSON *root = cJSON_CreateObject();
    cJSON_AddStringToObject(root, "openapi", "3.1.0");
    cJSON_AddStringToObject(root, "jsonSchemaDialect", kDialect);
    cJSON *info = cJSON_AddObjectToObject(root, "info");
    cJSON_AddStringToObject(info, "title", "Camera configuration and status pages");
    cJSON_AddStringToObject(info, "version", MW_VERSION);
    cJSON_AddStringToObject(
        info, "description",
        "The camera's web interface as the device simulator (mw-device) serves it: every configuration page and "
        "status report as a JSON document (GET), set requests on the configuration pages (POST, answered "
        "{\"setState\": \"succeed\"} or 400 {\"<key path>\": \"format error\"}), and each page's JSON Schema. "
        "Generated from the library's page descriptions and the sample catalog; the examples are the catalog's "
        "samples.");
    cJSON *license = cJSON_AddObjectToObject(info, "license");
    cJSON_AddStringToObject(license, "name", "Proprietary");
    cJSON_AddStringToObject(license, "identifier", "LicenseRef-Proprietary");
    cJSON *contact = cJSON_AddObjectToObject(info, "contact");
    cJSON_AddStringToObject(contact, "name", "Camera firmware team");
    cJSON *server = cJSON_CreateObject();
    cJSON_AddStringToObject(server, "url", "http://127.0.0.1:8080");
    cJSON_AddStringToObject(server, "description", "The simulator on its default address (scripts/serve.sh).");
    cJSON_AddItemToArray(cJSON_AddArrayToObject(root, "servers"), server);
    cJSON_AddArrayToObject(root, "security"); // no credentials: the simulator is a test bench
    cJSON *tags = cJSON_AddArrayToObject(root, "tags");
    add_tag(tags, "simulator");
    cJSON *paths = cJSON_AddObjectToObject(root, "paths");
    cJSON *components = cJSON_AddObjectToObject(root, "components");
    cJSON *schemas = cJSON_AddObjectToObject(components, "schemas");
    add_components(components, schemas);

    cJSON *index = cJSON_AddObjectToObject(paths, "/api");
    cJSON *indexGet =
        operation("index_document", "The index of the pages", "Every page: its name, path, group, whether it takes "
                                                              "set requests (and why not), and its argument.",
                  "simulator");
    cJSON *indexResponses = cJSON_AddObjectToObject(indexGet, "responses");
    cJSON_AddItemToObject(indexResponses, "200", json_reply("The index.", schema_ref("Index"), index_example()));
    cJSON_AddItemToObject(indexResponses, "405", response_ref("MethodNotAllowed"));
    cJSON_AddItemToObject(index, "get", indexGet);
    cJSON *self = cJSON_AddObjectToObject(paths, "/api/openapi.json");
    cJSON *selfGet = operation("openapi_json", "This document", "The OpenAPI document of the interface.", "simulator");
    cJSON *selfResponses = cJSON_AddObjectToObject(selfGet, "responses");
    cJSON_AddItemToObject(selfResponses, "200",
                          json_reply("The OpenAPI document.", schema_ref("OpenApiDocument"), self_example(root)));
    cJSON_AddItemToObject(selfResponses, "405", response_ref("MethodNotAllowed"));
    cJSON_AddItemToObject(self, "get", selfGet);

    Shared shared{schemas, {}};
    std::vector<char> buffer(kBuffer);
    for (const CatalogGroup *group : catalog_groups()) {
        bool tagged = false;
        for (size_t k = 0; k < group->count; ++k) {
            const CatalogEntry &entry = group->entries[k];
            if (entry.page == nullptr)
                continue; // the reply envelopes are components, not pages
            if (!tagged) {
                add_tag(tags, group->name);
                tagged = true;
            }
            add_page(paths, *group, entry, shared, buffer);
        }
    }
    return root;
}

std::string openapi_json()
{
    cJSON *root = document();
    // Without the tab indentation of the pages' documents: tabs are not
    // indentation to tools that read the document as YAML.
    char *text = cJSON_PrintUnformatted(root);
    std::string out = text != nullptr ? text : "";
    cJSON_free(text);
    cJSON_Delete(root);
    return out;
}

} // namespace openapi
