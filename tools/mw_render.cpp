/*
 * mw-render - renders the catalog's sample documents, as the camera's web
 * server would send them.
 *
 *   mw-render --list        the documents, one a line, with what each is
 *   mw-render NAME...       render the named documents to standard output
 *   mw-render --all         render every document, each under a header line
 */
#include "catalog.h"

#include <cstdio>
#include <cstring>
#include <vector>

namespace {

constexpr int32_t kBufferSize = 4 * 1024 * 1024;

void usage(FILE *out)
{
    fprintf(out,
            "usage: mw-render --list | --all | NAME...\n"
            "Renders the sample documents of the camera's JSON library.\n"
            "  --list   list the documents with a one-line description each\n"
            "  --all    render every document, each after a line '# NAME'\n"
            "  NAME     render that document (a serializer's name, see --list)\n"
            "  --help   this text\n");
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
        for (const CatalogEntry *entry : entries)
            printf("%-48s %s\n", entry->name, entry->description);
        return 0;
    }

    std::vector<char> buffer(kBufferSize);
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
