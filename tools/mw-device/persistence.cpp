#include "persistence.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <memory>
#include <mutex>
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

// The document and schema of every page's shared sample, made at the first
// saved document of the page that needs them and kept: a fleet's cameras
// restoring the same page from its sample ask for the same ones.
class Samples {
public:
    Samples() : once_(page_kinds().size()), schemas_(page_kinds().size(), nullptr), documents_(page_kinds().size())
    {
    }
    ~Samples()
    {
        for (cJSON *schema : schemas_)
            cJSON_Delete(schema);
    }
    const cJSON *schema(size_t k)
    {
        make(k);
        return schemas_[k];
    }
    const std::string &document(size_t k)
    {
        make(k);
        return documents_[k];
    }

private:
    void make(size_t k)
    {
        std::call_once(once_[k], [&] {
            const PageKind &kind = page_kinds()[k];
            std::unique_ptr<char[]> out(new char[kBuffer]);
            State sample = *kind.sample;
            if (kind.entry->page->render(sample.data(), out.get(), kBuffer) == 0)
                documents_[k] = out.get();
            sample = *kind.sample;
            if (kind.entry->page->schema(sample.data(), out.get(), kBuffer) == 0)
                schemas_[k] = cJSON_Parse(out.get());
        });
    }
    std::vector<std::once_flag> once_;
    std::vector<cJSON *> schemas_;
    std::vector<std::string> documents_;
};

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
    static Samples samples;
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
        const bool sample = shares_sample(page);
        // A saved document that is the sample's, as saved: the page stays
        // as it is, sharing the sample.
        if (sample && text.str() == samples.document(k))
            continue;
        cJSON *doc = cJSON_Parse(text.str().c_str());
        State state = snapshot(page);
        // The page's own state has a schema of its own; its sample's is kept.
        cJSON *own = nullptr;
        const cJSON *schema = nullptr;
        if (doc != nullptr && sample)
            schema = samples.schema(k);
        else if (doc != nullptr && ops.schema(state.data(), out.get(), kBuffer) == 0)
            schema = own = cJSON_Parse(out.get());
        std::string why;
        if (schema == nullptr) {
            why = "not a JSON document";
        } else {
            strip_read_only(doc, schema);
            cJSON_Delete(own);
            char *body = cJSON_PrintUnformatted(doc);
            if (ops.set(state.data(), body, static_cast<int32_t>(strlen(body)), out.get(), kBuffer) != 0)
                why = out.get();
            else if (state != snapshot(page)) // a document that is the page as it stands costs no copy
                publish(page, std::move(state));
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
