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

std::string saved_path(const Camera &camera, const Page &page)
{
    return camera.state_dir() + "/" + page.entry->name + ".json";
}

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

std::string camera_state_dir(const std::string &dir, unsigned id)
{
    if (dir.empty())
        return dir;
    char name[32];
    snprintf(name, sizeof name, "/camera-%04u", id);
    return dir + name;
}

bool prepare_state_dir(const Camera &camera, std::string *why)
{
    const std::string &dir = camera.state_dir();
    if (dir.empty())
        return true;
    if (mkdir(dir.c_str(), 0755) != 0 && errno != EEXIST) {
        *why = "cannot make " + dir + ": " + strerror(errno);
        return false;
    }
    return true;
}

bool saving(const Camera &camera) { return !camera.state_dir().empty(); }

bool save(const Camera &camera, const Page &page, const std::string &document)
{
    const std::string target = saved_path(camera, page);
    const std::string temporary = target + ".tmp";
    const int fd = open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0)
        return false;
    const bool written = write_all(fd, document) && fsync(fd) == 0;
    if (close(fd) != 0 || !written || rename(temporary.c_str(), target.c_str()) != 0) {
        unlink(temporary.c_str());
        return false;
    }
    const int dir = open(camera.state_dir().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (dir < 0)
        return false;
    const bool synced = fsync(dir) == 0;
    close(dir);
    return synced;
}

void restore(Camera &camera)
{
    std::unique_ptr<char[]> out(new char[kBuffer]);
    for (size_t k = 0; k < camera.page_count(); ++k) {
        Page &page = camera.page(k);
        const PageOps &ops = *page.entry->page;
        if (ops.set == nullptr)
            continue;
        std::ifstream in(saved_path(camera, page), std::ios::binary);
        if (!in)
            continue;
        std::stringstream text;
        text << in.rdbuf();
        cJSON *doc = cJSON_Parse(text.str().c_str());
        State state = snapshot(page);
        std::string why;
        if (doc == nullptr || ops.schema(state.data(), out.get(), kBuffer) != 0) {
            why = "not a JSON document";
        } else {
            cJSON *schema = cJSON_Parse(out.get());
            strip_read_only(doc, schema);
            cJSON_Delete(schema);
            char *body = cJSON_PrintUnformatted(doc);
            if (ops.set(state.data(), body, static_cast<int32_t>(strlen(body)), out.get(), kBuffer) == 0)
                publish(page, std::move(state));
            else
                why = out.get();
            cJSON_free(body);
        }
        cJSON_Delete(doc);
        if (!why.empty()) {
            for (char &c : why)
                c = c == '\n' || c == '\t' ? ' ' : c;
            fprintf(stderr, "mw-device: the saved %s no longer applies (%s): it starts from its sample\n",
                    saved_path(camera, page).c_str(), why.c_str());
        }
    }
}

} // namespace device
