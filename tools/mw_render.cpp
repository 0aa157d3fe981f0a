/*
 * mw-render - renders the catalog's sample documents, as the camera's web
 * server would send them.
 *
 *   mw-render --list        the documents, one a line: settable or read-only (and why), and what each is
 *   mw-render NAME...       render the named documents to standard output
 *   mw-render --all         render every document, each under a header line
 *   mw-render --schema NAME the JSON Schema of a page's sample document
 *   mw-render --openapi     the OpenAPI document of the device simulator's interface
 */
#include "catalog.h"
#include "openapi.h"

#include <cstdio>
#include <cstring>
#include <vector>

namespace {

constexpr int32_t kBufferSize = 4 * 1024 * 1024;

void usage(FILE *out)
{
    fprintf(out,
            "usage: mw-render --list | --all | --schema NAME | --openapi | NAME...\n"
            "Renders the sample documents of the camera's JSON library.\n"
            "  --list         list the documents: settable (a client may post it back) or\n"
            "                 read-only, and a one-line description each\n"
            "  --all          render every document, each after a line '# NAME'\n"
            "  --schema NAME  print the JSON Schema of that page's sample document\n"
            "  --openapi      print the OpenAPI 3.1 document of the device simulator's\n"
            "                 interface (every page, its schemas and replies)\n"
            "  NAME           render that document (a serializer's name, see --list)\n"
            "  --help         this text\n");
}

// Renders one entry to stdout; false (with a message on stderr) on failure.
bool render(const CatalogEntry &entry, std::vector<char> &buffer)
{
    buffer[0] = '\0';
    if (entry.render(buffer.data(), kBufferSize) != 0) {
        fprintf(stderr, "mw-render: %s: the serializer reported a failure\n", entry.name);
        return false;
    }
    if (strlen(buffer.data()) >= static_cast<size_t>(kBufferSize) - 1) {
        fprintf(stderr, "mw-render: %s: the document does not fit in %d bytes\n", entry.name, kBufferSize);
        return false;
    }
    fputs(buffer.data(), stdout);
    fputc('\n', stdout);
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 2) {
        usage(stderr);
        return 2;
    }
    if (strcmp(argv[1], "--help") == 0 || strcmp(argv[1], "-h") == 0) {
        usage(stdout);
        return 0;
    }
    const std::vector<const CatalogEntry *> entries = catalog_entries();
    if (strcmp(argv[1], "--list") == 0) {
        for (const CatalogEntry *entry : entries) {
            const char *kind = entry->page == nullptr ? "reply" : entry->page->set != nullptr ? "settable" : "read-only";
            if (const char *why = catalog_read_only(*entry))
                printf("%-48s %-9s %s (read-only: %s)\n", entry->name, kind, entry->description, why);
            else
                printf("%-48s %-9s %s\n", entry->name, kind, entry->description);
        }
        return 0;
    }

    if (strcmp(argv[1], "--openapi") == 0) {
        if (argc != 2) {
            usage(stderr);
            return 2;
        }
        puts(openapi::openapi_json().c_str());
        return 0;
    }
    std::vector<char> buffer(kBufferSize);
    if (strcmp(argv[1], "--schema") == 0) {
        if (argc != 3) {
            usage(stderr);
            return 2;
        }
        const CatalogEntry *entry = catalog_find(argv[2]);
        if (entry == nullptr || entry->page == nullptr) {
            fprintf(stderr, "mw-render: no page named '%s' (mw-render --list shows them)\n", argv[2]);
            return 1;
        }
        std::vector<unsigned char> state(entry->page->stateSize);
        entry->page->initial(state.data());
        if (entry->page->schema(state.data(), buffer.data(), kBufferSize) != 0) {
            fprintf(stderr, "mw-render: %s: the schema could not be printed\n", entry->name);
            return 1;
        }
        puts(buffer.data());
        return 0;
    }
    bool ok = true;
    if (strcmp(argv[1], "--all") == 0) {
        for (const CatalogEntry *entry : entries) {
            printf("# %s\n", entry->name);
            ok = render(*entry, buffer) && ok;
        }
        return ok ? 0 : 1;
    }
    for (int i = 1; i < argc; ++i) {
        const CatalogEntry *entry = catalog_find(argv[i]);
        if (entry == nullptr) {
            fprintf(stderr, "mw-render: no document named '%s' (mw-render --list shows them)\n", argv[i]);
            ok = false;
            continue;
        }
        ok = render(*entry, buffer) && ok;
    }
    return ok ? 0 : 1;
}
