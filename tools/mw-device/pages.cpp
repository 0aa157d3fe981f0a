#include "pages.h"

#include "http.h"

#include "openapi.h"

#include <cstring>

namespace device {

namespace {

// Every serving thread renders into a buffer of its own. Its memory is not
// cleared, so only the bytes the largest document written so far reached are
// resident: a thousand cameras' threads do not hold a mebibyte each.
constexpr int32_t kRenderBuffer = 1 << 20;
struct RenderBuffer {
    std::unique_ptr<char[]> bytes{new char[kRenderBuffer]};
    char *data() { return bytes.get(); }
};
thread_local RenderBuffer renderBuffer;

std::vector<PageKind> kinds;
std::map<std::string, int> byPath;
std::string indexText;

std::string make_index()
{
    cJSON *root = cJSON_CreateObject();
    cJSON *list = cJSON_AddArrayToObject(root, "pages");
    for (const PageKind &k : kinds) {
        const PageKind *page = &k;
        cJSON *item = cJSON_CreateObject();
        cJSON_AddStringToObject(item, "name", page->entry->name);
        cJSON_AddStringToObject(item, "path", page->path.c_str());
        cJSON_AddStringToObject(item, "group", page->group.c_str());
        cJSON_AddBoolToObject(item, "settable", page->entry->page->set != nullptr);
        cJSON_AddStringToObject(item, "description", page->entry->description);
        if (const char *why = catalog_read_only(*page->entry))
            cJSON_AddStringToObject(item, "readOnly", why);
        if (page->entry->page->argumentName != nullptr)
            cJSON_AddStringToObject(item, "argument", page->entry->page->argumentName);
        cJSON_AddItemToArray(list, item);
    }
    return printed(root);
}

} // namespace

void load_pages()
{
    for (const CatalogGroup *group : catalog_groups()) {
        for (size_t k = 0; k < group->count; ++k) {
            const CatalogEntry &entry = group->entries[k];
            if (entry.page == nullptr)
                continue; // the reply envelopes are not pages
            PageKind page;
            page.entry = &entry;
            page.group = group->name;
            page.path = "/api/" + openapi::resource_of(entry.name);
            State sample(entry.page->stateSize);
            entry.page->initial(sample.data());
            page.sample = std::make_shared<const State>(std::move(sample));
            byPath[page.path] = static_cast<int>(kinds.size());
            kinds.push_back(std::move(page));
        }
    }
    indexText = make_index();
}

const std::vector<PageKind> &page_kinds() { return kinds; }

int page_index(const std::string &path)
{
    const auto found = byPath.find(path);
    return found == byPath.end() ? -1 : found->second;
}

const std::string &index_document() { return indexText; }

State snapshot(Page &page)
{
    std::shared_ptr<const State> current;
    {
        std::lock_guard<std::mutex> hold(page.lock);
        current = page.state;
    }
    return *current; // a published state never changes: copied outside the lock
}

void publish(Page &page, State state)
{
    auto own = std::make_shared<const State>(std::move(state));
    std::lock_guard<std::mutex> hold(page.lock);
    page.state.swap(own);
}

bool shares_sample(Page &page)
{
    std::lock_guard<std::mutex> hold(page.lock);
    return page.state == page.kind->sample;
}

Rendered render(const Page &page, State state, const Selection &selection, bool schema, std::string *out)
{
    const PageOps &ops = *page.entry->page;
    if (selection.kind == Selection::given)
        *ops.argument(state.data()) = selection.value;
    const int32_t rc = schema ? ops.schema(state.data(), renderBuffer.data(), kRenderBuffer)
                              : ops.render(state.data(), renderBuffer.data(), kRenderBuffer);
    if (rc != 0)
        return selection.kind == Selection::given ? Rendered::bad_argument : Rendered::failed;
    *out = renderBuffer.data();
    return Rendered::ok;
}

bool apply(const Page &page, State &state, const Selection &selection, const std::string &body, std::string *answer)
{
    const PageOps &ops = *page.entry->page;
    int32_t kept = 0;
    if (selection.kind == Selection::given) {
        kept = *ops.argument(state.data());
        *ops.argument(state.data()) = selection.value;
    }
    const int32_t rc = ops.set(state.data(), body.data(), static_cast<int32_t>(body.size()), renderBuffer.data(),
                               kRenderBuffer);
    *answer = renderBuffer.data();
    if (selection.kind == Selection::given)
        *ops.argument(state.data()) = kept; // a request does not move the page's selector
    return rc == 0;
}

std::string format_error(const char *key)
{
    zk_return_format_error_json(renderBuffer.data(), kRenderBuffer, key);
    return renderBuffer.data();
}

std::string set_failed()
{
    zk_return_set_request_faild_json(renderBuffer.data(), kRenderBuffer);
    return renderBuffer.data();
}

} // namespace device
