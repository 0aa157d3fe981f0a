// Renders every catalog page in states other than its sample, one JSON line
// per state: {"name": page, "origin": how the state came about, "document": ...}.
//
//   openapi_states FUZZ_CORPUS_DIR [PERTURBED_PER_PAGE]
//
// The states: the sample; the sample under every value of the page's argument
// (its two ends and zero when the range is wide); for a settable page the
// sample after a set request putting every settable number at its lowest and
// then at its highest value and every settable text at its full length; the
// fuzz corpora's records (serializers/, capability/) and set bodies (set/);
// and the sample with its small whole numbers (counts, switches, selectors)
// changed at random, from a fixed seed. States a page refuses to render are
// left out. The OpenAPI document's schemas must hold for all of them.
#include "catalog.h"
#include "fuzz_common.h"

#include <dirent.h>

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace {

constexpr int32_t kBuffer = 4 * 1024 * 1024;
std::vector<char> buffer(kBuffer);

void emit(const CatalogEntry &entry, const std::string &origin, std::vector<unsigned char> &state)
{
    if (entry.page->render(state.data(), buffer.data(), kBuffer) != 0)
        return;
    cJSON *document = cJSON_Parse(buffer.data());
    if (document == nullptr) {
        fprintf(stderr, "openapi_states: %s (%s) rendered no JSON\n", entry.name, origin.c_str());
        return;
    }
    cJSON *line = cJSON_CreateObject();
    cJSON_AddStringToObject(line, "name", entry.name);
    cJSON_AddStringToObject(line, "origin", origin.c_str());
    cJSON_AddItemToObject(line, "document", document);
    char *text = cJSON_PrintUnformatted(line);
    puts(text);
    cJSON_free(text);
    cJSON_Delete(line);
}

cJSON *schema_of(const CatalogEntry &entry, std::vector<unsigned char> &state)
{
    if (entry.page->schema(state.data(), buffer.data(), kBuffer) != 0)
        return nullptr;
    return cJSON_Parse(buffer.data());
}

// Sets every settable leaf of `doc` (by its schema) to its lowest value
// (high == false) or highest, texts to their full length; read-only keys
// are left as they are, so that the set function takes them back.
void extremes(cJSON *doc, const cJSON *schema, bool high)
{
    if (cJSON_IsTrue(cJSON_GetObjectItemCaseSensitive(schema, "readOnly")))
        return;
    if (cJSON_IsObject(doc)) {
        const cJSON *properties = cJSON_GetObjectItemCaseSensitive(schema, "properties");
        for (cJSON *m = doc->child; m != nullptr; m = m->next)
            extremes(m, cJSON_GetObjectItemCaseSensitive(properties, m->string), high);
    } else if (cJSON_IsArray(doc)) {
        const cJSON *prefix = cJSON_GetObjectItemCaseSensitive(schema, "prefixItems");
        const cJSON *items = cJSON_GetObjectItemCaseSensitive(schema, "items");
        int at = 0;
        for (cJSON *e = doc->child; e != nullptr; e = e->next, ++at)
            extremes(e, prefix != nullptr ? cJSON_GetArrayItem(prefix, at) : items, high);
    } else if (cJSON_IsNumber(doc) && cJSON_GetObjectItemCaseSensitive(schema, "const") == nullptr) {
        const cJSON *end = cJSON_GetObjectItemCaseSensitive(schema, high ? "maximum" : "minimum");
        if (cJSON_IsNumber(end))
            cJSON_SetNumberValue(doc, end->valuedouble);
    } else if (cJSON_IsString(doc)) {
        const cJSON *length = cJSON_GetObjectItemCaseSensitive(schema, "maxLength");
        if (cJSON_IsNumber(length) && high)
            cJSON_SetValuestring(doc, std::string(static_cast<size_t>(length->valueint), 'x').c_str());
        else if (!high)
            cJSON_SetValuestring(doc, "");
    }
}

void set_states(const CatalogEntry &entry, const std::vector<unsigned char> &sample)
{
    for (bool high : {false, true}) {
        std::vector<unsigned char> state = sample;
        if (entry.page->render(state.data(), buffer.data(), kBuffer) != 0)
            return;
        cJSON *doc = cJSON_Parse(buffer.data());
        cJSON *schema = schema_of(entry, state);
        extremes(doc, schema, high);
        char *body = cJSON_PrintUnformatted(doc);
        if (entry.page->set(state.data(), body, static_cast<int32_t>(strlen(body)), buffer.data(), kBuffer) == 0)
            emit(entry, high ? "set: every settable value at its highest" : "set: every settable value at its lowest",
                 state);
        else
            fprintf(stderr, "openapi_states: %s refused its %s values: %s\n", entry.name, high ? "highest" : "lowest",
                    buffer.data());
        cJSON_free(body);
        cJSON_Delete(doc);
        cJSON_Delete(schema);
    }
}

void argument_states(const CatalogEntry &entry, const std::vector<unsigned char> &sample)
{
    const PageOps &ops = *entry.page;
    if (ops.argument == nullptr)
        return;
    std::vector<int64_t> values;
    if (static_cast<int64_t>(ops.argumentMax) - ops.argumentMin <= 256) {
        for (int64_t v = ops.argumentMin; v <= ops.argumentMax; ++v)
            values.push_back(v);
    } else {
        values = {ops.argumentMin, 0, ops.argumentMax};
    }
    for (int64_t v : values) {
        std::vector<unsigned char> state = sample;
        *ops.argument(state.data()) = static_cast<int32_t>(v);
        emit(entry, std::string(ops.argumentName) + "=" + std::to_string(v), state);
    }
}

std::vector<std::string> files_in(const std::string &dir)
{
    std::vector<std::string> out;
    DIR *d = opendir(dir.c_str());
    if (d == nullptr)
        return out;
    while (const dirent *e = readdir(d))
        if (e->d_name[0] != '.')
            out.push_back(dir + "/" + e->d_name);
    closedir(d);
    return out;
}

std::string read_all(const std::string &path)
{
    std::ifstream in(path, std::ios::binary);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
}

void corpus_states(const std::string &corpus)
{
    const std::vector<const CatalogEntry *> pages = fuzz::pages(false);
    for (const char *kind : {"serializers", "capability", "set"}) {
        for (const std::string &path : files_in(corpus + "/" + kind)) {
            const std::string bytes = read_all(path);
            const size_t newline = bytes.find('\n');
            if (newline == std::string::npos)
                continue;
            const CatalogEntry *entry = catalog_find(bytes.substr(0, newline).c_str());
            if (entry == nullptr || entry->page == nullptr)
                continue;
            const auto *rest = reinterpret_cast<const uint8_t *>(bytes.data() + newline + 1);
            const size_t restSize = bytes.size() - newline - 1;
            std::vector<unsigned char> state;
            const std::string origin = std::string("fuzz corpus ") + kind + "/" + path.substr(path.rfind('/') + 1);
            if (strcmp(kind, "set") == 0) {
                if (entry->page->set == nullptr)
                    continue;
                state.assign(entry->page->stateSize, 0);
                entry->page->initial(state.data());
                if (entry->page->set(state.data(), reinterpret_cast<const char *>(rest), static_cast<int32_t>(restSize),
                                     buffer.data(), kBuffer) != 0)
                    continue;
            } else {
                fuzz::fill_state(*entry, state, rest, restSize);
            }
            emit(*entry, origin, state);
        }
    }
}

// The sample with some of its small whole numbers (0 to 64, or -1: counts,
// switches, selectors, list lengths) replaced by others of the same kind.
// Words holding text bytes or large values are kept, so texts stay texts.
void perturbed_states(const CatalogEntry &entry, const std::vector<unsigned char> &sample, int count, uint64_t &seed)
{
    auto next = [&seed]() {
        seed ^= seed << 13;
        seed ^= seed >> 7;
        seed ^= seed << 17;
        return seed;
    };
    for (int k = 0; k < count; ++k) {
        std::vector<unsigned char> bytes = sample;
        for (size_t at = 0; at + 4 <= bytes.size(); at += 4) {
            int32_t v;
            memcpy(&v, bytes.data() + at, 4);
            if (v < -1 || v > 64 || next() % 4 != 0)
                continue;
            const int32_t span = v < 4 ? 8 : 2 * v + 2;
            v = static_cast<int32_t>(next() % static_cast<uint64_t>(span + 1)) - (next() % 16 == 0 ? 1 : 0);
            memcpy(bytes.data() + at, &v, 4);
        }
        std::vector<unsigned char> state;
        fuzz::fill_state(entry, state, bytes.data(), bytes.size());
        emit(entry, "perturbed #" + std::to_string(k), state);
    }
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 2) {
        fprintf(stderr, "usage: openapi_states FUZZ_CORPUS_DIR [PERTURBED_PER_PAGE]\n");
        return 2;
    }
    const int perturbed = argc > 2 ? atoi(argv[2]) : 12;
    uint64_t seed = 0x9E3779B97F4A7C15ull;
    for (const CatalogEntry *entry : catalog_entries()) {
        if (entry->page == nullptr)
            continue;
        std::vector<unsigned char> sample(entry->page->stateSize);
        entry->page->initial(sample.data());
        emit(*entry, "sample", sample);
        argument_states(*entry, sample);
        if (entry->page->set != nullptr)
            set_states(*entry, sample);
        perturbed_states(*entry, sample, perturbed, seed);
    }
    corpus_states(argv[1]);
    return 0;
}
