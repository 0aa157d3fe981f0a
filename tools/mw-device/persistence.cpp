#include "persistence.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <sstream>

namespace device {

namespace {

constexpr int32_t kBuffer = 1 << 20;
std::string stateDir;

std::string saved_path(const Page &page) { return stateDir + "/" + page.entry->name + ".json"; }

bool write_all(int fd, const std::string &text)
{
    size_t done = 0;
    while (done < text.size()) {
        const ssize_t n = write(fd, text.data() + done, text.size() - done);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return false;
        done += static_cast<size_t>(n);
    }
    return true;
}

// Leaves out of `doc` every member its schema marks read-only, through nested
// objects and list elements: what a set request may carry back.
void strip_read_only(cJSON *doc, const cJSON *schema)
{
    if (cJSON_IsObject(doc)) {
        const cJSON *properties = cJSON_GetObjectItemCaseSensitive(schema, "properties");
        cJSON *member = doc->child;
        while (member != nullptr) {
            cJSON *next = member->next;
            const cJSON *described = cJSON_GetObjectItemCaseSensitive(properties, member->string);
            if (cJSON_IsTrue(cJSON_GetObjectItemCaseSensitive(described, "readOnly")))
                cJSON_Delete(cJSON_DetachItemViaPointer(doc, member));
            else
                strip_read_only(member, described);
            member = next;
        }
    } else if (cJSON_IsArray(doc)) {
        const cJSON *items = cJSON_GetObjectItemCaseSensitive(schema, "prefixItems");
        int position = 0;
        for (cJSON *e = doc->child; e != nullptr; e = e->next, ++position)
            strip_read_only(e, cJSON_GetArrayItem(items, position));
    }
}

} // namespace

void set_state_dir(const std::string &dir)
{
    stateDir = dir;
    if (!stateDir.empty())
        mkdir(stateDir.c_str(), 0755);
}

bool saving() { return !stateDir.empty(); }

bool save(const Page &page, const std::string &document)
{
    const std::string target = saved_path(page);
    const std::string temporary = target + ".tmp";
    const int fd = open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0)
        return false;
    const bool written = write_all(fd, document) && fsync(fd) == 0;
    if (close(fd) != 0 || !written || rename(temporary.c_str(), target.c_str()) != 0) {
        unlink(temporary.c_str());
        return false;
    }
    const int dir = open(stateDir.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (dir < 0)
        return false;
    const bool synced = fsync(dir) == 0;
    close(dir);
    return synced;
}

void restore()
{
    std::vector<char> out(kBuffer);
    for (const auto &page : all_pages()) {
        const PageOps &ops = *page->entry->page;
        std::ifstream in(saved_path(*page), std::ios::binary);
        if (!in || ops.set == nullptr)
            continue;
        std::stringstream text;
        text << in.rdbuf();
        cJSON *doc = cJSON_Parse(text.str().c_str());
        std::string why;
        if (doc == nullptr || ops.schema(page->state.data(), out.data(), kBuffer) != 0) {
            why = "not a JSON document";
        } else {
            cJSON *schema = cJSON_Parse(out.data());
            strip_read_only(doc, schema);
            cJSON_Delete(schema);
            char *body = cJSON_PrintUnformatted(doc);
            State before = page->state;
            if (ops.set(page->state.data(), body, static_cast<int32_t>(strlen(body)), out.data(), kBuffer) != 0) {
                why = out.data();
                page->state = before;
            }
            cJSON_free(body);
        }
        cJSON_Delete(doc);
        if (!why.empty()) {
            for (char &c : why)
                c = c == '\n' || c == '\t' ? ' ' : c;
            fprintf(stderr, "mw-device: the saved %s no longer applies (%s): it starts from its sample\n",
                    page->entry->name, why.c_str());
        }
    }
}

} // namespace device
