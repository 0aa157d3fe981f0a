/*
 * fuzz_common.h - what the fuzz targets share: picking a catalog page by the
 * name on the input's first line, and keeping a state's pointers valid when
 * its bytes come from the fuzzer.
 */
#ifndef MIDDLEWARE_FUZZ_COMMON_H
#define MIDDLEWARE_FUZZ_COMMON_H

#include "catalog.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace fuzz {

// The catalog's pages (entries with a page; settable only, if asked; whose
// name starts with `prefix`, if given).
std::vector<const CatalogEntry *> pages(bool settableOnly, const char *prefix = "");

// Splits "NAME\nREST": the page of that name among `candidates` (or, for an
// unknown name, the one the name's bytes pick) and REST. A first line
// "NAME full" sets *fullTexts (when asked for).
const CatalogEntry *pick(const std::vector<const CatalogEntry *> &candidates, const uint8_t *data, size_t size,
                         const uint8_t **rest, size_t *restSize, bool *fullTexts = nullptr);

// Copies `bytes` over a state started from the page's sample, keeping every
// word of the sample that holds an address (a record pointing at its sample
// data): the fuzzer chooses every byte of the record but its pointers.
void fill_state(const CatalogEntry &entry, std::vector<unsigned char> &state, const uint8_t *bytes, size_t size);

} // namespace fuzz

#endif /* MIDDLEWARE_FUZZ_COMMON_H */
