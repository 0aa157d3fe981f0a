#include "conditional.h"

#include <cstdint>
#include <cstdio>

namespace device {

std::string entity_tag(const std::string &document)
{
    uint64_t hash = 0xcbf29ce484222325ull;
    for (const char c : document) {
        hash ^= static_cast<unsigned char>(c);
        hash *= 0x100000001b3ull;
    }
    char text[24];
    snprintf(text, sizeof text, "\"%016llx\"", static_cast<unsigned long long>(hash));
    return text;
}

namespace {

bool blank(char c) { return c == ' ' || c == '\t'; }

} // namespace

bool tag_list_matches(const std::string &field, const std::string &tag, bool weak)
{
    size_t i = 0;
    const size_t n = field.size();
    while (i < n && blank(field[i]))
        ++i;
    if (i < n && field[i] == '*') {
        size_t j = i + 1;
        while (j < n && blank(field[j]))
            ++j;
        if (j == n)
            return true;
    }
    const bool tagIsWeak = tag.rfind("W/", 0) == 0;
    const std::string opaque = tagIsWeak ? tag.substr(2) : tag;
    // Members: [W/]"etagc*", separated by commas and optional blanks. A
    // member that is not a tag is passed over; commas inside quotes belong
    // to the tag.
    while (i < n) {
        while (i < n && (blank(field[i]) || field[i] == ','))
            ++i;
        if (i >= n)
            break;
        bool memberIsWeak = false;
        if (field.compare(i, 2, "W/") == 0) {
            memberIsWeak = true;
            i += 2;
        }
        if (i < n && field[i] == '"') {
            const size_t close = field.find('"', i + 1);
            if (close == std::string::npos)
                return false;
            const std::string member = field.substr(i, close - i + 1);
            i = close + 1;
            const bool strongPair = !memberIsWeak && !tagIsWeak;
            if (member == opaque && (weak || strongPair))
                return true;
        }
        while (i < n && field[i] != ',')
            ++i;
    }
    return false;
}

Precondition evaluate(const char *ifMatch, const char *ifNoneMatch, const std::string &tag, bool safe)
{
    if (ifMatch != nullptr && !tag_list_matches(ifMatch, tag, false))
        return Precondition::failed;
    if (ifNoneMatch != nullptr && tag_list_matches(ifNoneMatch, tag, true))
        return safe ? Precondition::not_modified : Precondition::failed;
    return Precondition::proceed;
}

} // namespace device
