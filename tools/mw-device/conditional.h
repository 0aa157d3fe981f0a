/*
 * Conditional requests: the entity tag of a rendered document and the
 * If-Match / If-None-Match evaluation of a request against it.
 */
#pragma once

#include <string>

namespace device {

// The strong entity tag of a document: 64-bit FNV-1a over its bytes as 16
// lower-case hex digits, quoted ("\"3f2a...\""). A pure function of the bytes,
// so a page that renders the same document keeps its tag across restarts.
std::string entity_tag(const std::string &document);

// Whether a field value of If-Match / If-None-Match ("*", or a list of tags
// such as "\"a\", W/\"b\"") matches `tag`. `weak` compares as If-None-Match
// does (W/ ignored on both sides); otherwise a weak tag never matches.
bool tag_list_matches(const std::string &field, const std::string &tag, bool weak);

enum class Precondition { proceed, not_modified, failed };

// The outcome of a request's preconditions for a resource that exists and
// whose current tag is `tag`. A null field was not sent. `safe` is true for
// GET and HEAD, which answer 304 where other methods answer 412.
Precondition evaluate(const char *ifMatch, const char *ifNoneMatch, const std::string &tag, bool safe);

} // namespace device
