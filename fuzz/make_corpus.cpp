// Writes the fuzz targets' seed corpora and the dictionary of the pages' keys
// from the catalog:   make_corpus FUZZ_DIR
//   corpus/set/NAME          "NAME\n" and the page's document
//   corpus/set/NAME.full     "NAME full\n" and the document of a state whose
//                            texts fill their arrays
//   corpus/serializers/NAME  "NAME\n" and the bytes of the page's sample state
//   corpus/capability/NAME   the same for the capability documents
//   corpus/readers/*         a key line, four bytes, a request document
//   corpus/file_reader/*     a length byte and a file
//   keys.dict                every key of every document, once
#include "catalog.h"

#include <cstdio>
#include <cstring>
#include <set>
#include <string>
#include <vector>

namespace {

void write(const std::string &path, const std::string &bytes)
{
    FILE *f = fopen(path.c_str(), "wb");
    if (f == nullptr) {
        perror(path.c_str());
        return;
    }
    fwrite(bytes.data(), 1, bytes.size(), f);
    fclose(f);
}

void keys_of(const cJSON *node, std::set<std::string> &keys)
{
    for (const cJSON *c = node != nullptr ? node->child : nullptr; c != nullptr; c = c->next) {
        if (c->string != nullptr)
            keys.insert(c->string);
        keys_of(c, keys);
    }
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        fprintf(stderr, "usage: make_corpus FUZZ_DIR\n");
        return 2;
    }
    const std::string dir = argv[1];
    std::vector<char> out(1 << 22);
    std::set<std::string> keys;
    for (const CatalogEntry *e : catalog_entries()) {
        if (e->page == nullptr)
            continue;
        std::vector<unsigned char> state(e->page->stateSize);
        e->page->initial(state.data());
        const std::string head = std::string(e->name) + "\n";
        const std::string bytes(state.begin(), state.end());
        write(dir + "/corpus/serializers/" + e->name, head + bytes);
        if (strncmp(e->name, "get_cap_", 8) == 0)
            write(dir + "/corpus/capability/" + e->name, head + bytes);
        if (e->page->render(state.data(), out.data(), static_cast<int32_t>(out.size())) != 0)
            continue;
        cJSON *doc = cJSON_Parse(out.data());
        keys_of(doc, keys);
        cJSON_Delete(doc);
        if (e->page->set == nullptr)
            continue;
        write(dir + "/corpus/set/" + e->name, head + out.data());
        // The same page from a state whose texts fill their arrays.
        catalog_fill_texts(*e, state.data());
        if (e->page->render(state.data(), out.data(), static_cast<int32_t>(out.size())) == 0)
            write(dir + "/corpus/set/" + e->name + ".full", std::string(e->name) + " full\n" + out.data());
    }
    const char *requests[] = {
        "enable\n\x01\x10\x04\x08{\"enable\": 1, \"name\": \"gate\", \"list\": [{\"index\": 1, \"i\": \"x\"}]}",
        "list\n\x00\x20\x03\x08{\"list\": [{\"i\": 0}, {\"i\": \"a\"}, 3], \"n\": [1, 2, \"x\"]}",
        "n\n\xff\x01\x02\x0d{\"n\": [1.5, -2, 3e9], \"N\": \"\"}",
    };
    for (size_t i = 0; i < sizeof requests / sizeof requests[0]; ++i)
        write(dir + "/corpus/readers/seed" + std::to_string(i), requests[i]);
    write(dir + "/corpus/file_reader/seed0", std::string("\x00{\"motionEnable\": 1}\n", 22));
    write(dir + "/corpus/file_reader/seed1", std::string("\x05short", 6));
    std::string dict;
    for (const std::string &k : keys) {
        dict += "\"";
        for (char c : k)
            dict += (c == '"' || c == '\\') ? std::string("\\") + c : std::string(1, c);
        dict += "\"\n";
    }
    write(dir + "/keys.dict", dict);
    printf("%zu keys\n", keys.size());
    return 0;
}
