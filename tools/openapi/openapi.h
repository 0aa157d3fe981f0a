/*
 * openapi.h - the OpenAPI 3.1 description of the device simulator's HTTP
 * interface, generated from the catalog: one path per page, its document's
 * schema, the catalog's sample as its example, every reply the simulator
 * gives. `mw-render --openapi` prints it; the simulator serves it at
 * GET /api/openapi.json.
 */
#ifndef MIDDLEWARE_OPENAPI_H
#define MIDDLEWARE_OPENAPI_H

#include "catalog.h"

#include <cjson/cJSON.h>

#include <string>

namespace openapi {

// The JSON Schema that every state of the page renders to, as a new tree the
// caller deletes; nullptr when the page's schema cannot be printed. It comes
// from the page's description (keys printed only sometimes optional, every
// event type allowed, keys that texts name allowed under any name), widened
// over the sample and every argument value: lists take any number of
// elements shaped like any of the sample's, keys missing from some of those
// schemas are not required.
cJSON *page_document_schema(const CatalogEntry &entry);

// "get_ptz_presets_json" -> "ptz_presets", "ware_get_auto_export_json" ->
// "auto_export": the page's name in its path, /api/<resource>.
std::string resource_of(const char *name);

// The whole document as a new tree (the caller deletes it), and printed.
cJSON *document();
std::string openapi_json();

} // namespace openapi

#endif /* MIDDLEWARE_OPENAPI_H */
