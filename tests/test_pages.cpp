// Every page states its identity once, in its declaration beside its
// description: its names, whether a client may write it and why not, and the
// argument a web server passes. The page table keeps those declarations; the
// catalog, the tools and the shared object's exports must agree with it.
#include "catalog.h"

#include <gtest/gtest.h>

#include <dlfcn.h>

#include <cstring>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace {

std::vector<const CatalogEntry *> catalog_pages()
{
    std::vector<const CatalogEntry *> pages;
    for (const CatalogEntry *e : catalog_entries())
        if (e->page != nullptr)
            pages.push_back(e);
    return pages;
}

bool same_text(const char *a, const char *b) { return (a == nullptr) == (b == nullptr) && (a == nullptr || strcmp(a, b) == 0); }

// "get_x_json" -> "set_x_json", "ware_get_x_json" -> "ware_set_x_json".
std::string renamed(const char *serializer, const char *verb)
{
    std::string name = serializer;
    const size_t at = name.find("get_");
    return name.replace(at, 3, verb);
}

TEST(PageTable, EveryCatalogPageHasTheIdentityItsDeclarationStates)
{
    std::set<std::string> seen;
    for (const CatalogEntry *e : catalog_pages()) {
        SCOPED_TRACE(e->name);
        const mw::PageRow *row = catalog_row(*e);
        ASSERT_NE(row, nullptr) << "a catalog page the library does not declare";
        EXPECT_STREQ(row->name, e->name);
        EXPECT_EQ(row->setName != nullptr, e->page->set != nullptr) << "settable in one place, read-only in the other";
        EXPECT_TRUE(same_text(row->argument, e->page->argumentName))
            << "declared argument " << (row->argument ? row->argument : "none") << ", catalog's "
            << (e->page->argumentName ? e->page->argumentName : "none");
        if (row->setName == nullptr)
            EXPECT_TRUE(row->readOnly != nullptr && strlen(row->readOnly) > 3) << "a read-only page says why";
        else
            EXPECT_EQ(row->readOnly, nullptr) << "a settable page gives no read-only reason";
        EXPECT_EQ(e->testsBuffer, (row->page->flags & mw::kPrintsAnyBuffer) == 0);
        EXPECT_NE(e->inputs, nullptr);
        EXPECT_TRUE(seen.insert(e->name).second) << "listed twice";
    }
    size_t rows = 0;
    for (const mw::PageRow *row = mw::page_rows(); row != nullptr; row = row->next) {
        ++rows;
        EXPECT_EQ(seen.count(row->name), 1u) << row->name << " is declared but missing from the catalog";
    }
    EXPECT_EQ(rows, seen.size());
    EXPECT_EQ(rows, 173u);
}

TEST(PageTable, TheSharedObjectExportsExactlyTheFunctionsEachPageDeclares)
{
    for (const mw::PageRow *row = mw::page_rows(); row != nullptr; row = row->next) {
        SCOPED_TRACE(row->name);
        EXPECT_NE(dlsym(RTLD_DEFAULT, row->name), nullptr);
        EXPECT_NE(dlsym(RTLD_DEFAULT, row->schemaName), nullptr);
        EXPECT_EQ(row->schemaName, renamed(row->name, "schema"));
        if (row->setName != nullptr) {
            EXPECT_EQ(row->setName, renamed(row->name, "set"));
            EXPECT_NE(dlsym(RTLD_DEFAULT, row->setName), nullptr);
        } else {
            EXPECT_EQ(dlsym(RTLD_DEFAULT, renamed(row->name, "set").c_str()), nullptr)
                << "a read-only page with a set function";
        }
    }
}

// The table's description of a page, called with the catalog's inputs, renders
// what the library's serializer renders: the rows are the pages they name and
// the catalog passes the inputs in the order the page takes them.
TEST(PageTable, EachRowRendersWhatItsSerializerRenders)
{
    std::vector<char> byLibrary(1 << 20), byTable(1 << 20);
    for (const CatalogEntry *e : catalog_pages()) {
        SCOPED_TRACE(e->name);
        std::vector<unsigned char> state(e->page->stateSize), copy(e->page->stateSize);
        e->page->initial(state.data());
        copy = state;
        ASSERT_EQ(e->page->render(state.data(), byLibrary.data(), static_cast<int32_t>(byLibrary.size())), 0);
        ASSERT_EQ(catalog_render_by_table(*e, copy.data(), byTable.data(), static_cast<int32_t>(byTable.size())), 0);
        EXPECT_STREQ(byTable.data(), byLibrary.data());
    }
}

} // namespace
