#include "catalog.h"

namespace {
const CatalogEntry entries[] = {
    {"zk_return_get_request_empty_json", "reply to a get request with nothing to report",
     [](char *dst, int32_t n) { return zk_return_get_request_empty_json(dst, n); }},
    {"zk_return_set_request_succeed_json", "reply to a set request that was applied",
     [](char *dst, int32_t n) { return zk_return_set_request_succeed_json(dst, n); }},
    {"zk_return_set_request_faild_json", "reply to a set request that was refused",
     [](char *dst, int32_t n) { return zk_return_set_request_faild_json(dst, n); }},
    {"zk_return_format_error_json", "reply naming the request member that was malformed",
     [](char *dst, int32_t n) { return zk_return_format_error_json(dst, n, "deviceName"); }},
};
} // namespace

const CatalogGroup catalog_core = catalog_group("core", entries);
