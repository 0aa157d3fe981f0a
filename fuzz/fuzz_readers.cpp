// The request readers over arbitrary parsed documents, keys, indices and
// sizes. Input: a key line, then four bytes of index and size, then the
// document's text.
#include "middleware.h"

#include <cstdlib>
#include <cstring>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const uint8_t *newline = static_cast<const uint8_t *>(memchr(data, '\n', size));
    if (newline == nullptr || static_cast<size_t>(newline - data) + 5 > size)
        return 0;
    const std::string key(reinterpret_cast<const char *>(data), static_cast<size_t>(newline - data));
    const uint8_t *p = newline + 1;
    const int32_t index = static_cast<int8_t>(p[0]);
    const int32_t outSize = p[1];
    const int32_t max = p[2] % 16;
    const std::string memberKey = std::string(1, static_cast<char>('a' + p[3] % 26));
    const std::string text(reinterpret_cast<const char *>(p + 4), size - static_cast<size_t>(p + 4 - data));
    cJSON *doc = cJSON_Parse(text.c_str());
    if (doc == nullptr)
        return 0;
    int32_t wrong = -7, number = -7, numbers[16];
    double real = 0;
    std::string out(static_cast<size_t>(outSize) + 1, '\x5a');
    get_json_object(doc, key.c_str());
    get_json_section_type_int(doc, key.c_str(), &number, &wrong);
    get_json_section_type_double(doc, key.c_str(), &real, &wrong);
    // The text reader writes at most outSize bytes, the NUL included.
    if (outSize > 0) {
        get_json_section_type_string(doc, key.c_str(), &out[0], outSize, &wrong);
        if (out[static_cast<size_t>(outSize)] != '\x5a')
            abort();
    }
    get_json_section_type_int_array(doc, key.c_str(), numbers, max, &wrong);
    get_json_array_struct_from_index(doc, key.c_str(), memberKey.c_str(), index);
    // The text finder compares texts: only arrays of objects whose member is
    // a text fit its contract.
    cJSON *list = cJSON_GetObjectItem(doc, key.c_str());
    bool texts = cJSON_IsArray(list);
    for (cJSON *e = texts ? list->child : nullptr; e != nullptr && texts; e = e->next) {
        cJSON *m = cJSON_GetObjectItem(e, memberKey.c_str());
        texts = m == nullptr || cJSON_IsString(m);
    }
    if (texts)
        get_json_array_struct_from_string(doc, key.c_str(), memberKey.c_str(), "x");
    cJSON_Delete(doc);
    return 0;
}
