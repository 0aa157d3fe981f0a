// The shared object as the firmware sees it: it exports exactly the API that
// the header declares, and it needs nothing at run time but libc and libcjson.
// The ELF file is read directly, so the check is the same for every target.
#include <gtest/gtest.h>

#include <elf.h>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

std::string read_file(const char *path)
{
    std::ifstream in(path, std::ios::binary);
    EXPECT_TRUE(in.good()) << path;
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

struct DynamicInfo {
    std::set<std::string> exported;  // defined, global or weak, default visibility
    std::set<std::string> undefined; // what it takes from elsewhere
    std::vector<std::string> needed; // DT_NEEDED entries
};

DynamicInfo read_dynamic(const std::string &image)
{
    DynamicInfo info;
    if (image.size() < sizeof(Elf64_Ehdr)) {
        ADD_FAILURE() << "too small for an ELF header";
        return info;
    }
    const auto *data = reinterpret_cast<const unsigned char *>(image.data());
    Elf64_Ehdr header;
    memcpy(&header, data, sizeof header);
    if (memcmp(header.e_ident, ELFMAG, SELFMAG) != 0 || header.e_ident[EI_CLASS] != ELFCLASS64) {
        ADD_FAILURE() << "not a 64-bit ELF file";
        return info;
    }
    std::vector<Elf64_Shdr> sections(header.e_shnum);
    for (size_t i = 0; i < sections.size(); ++i)
        memcpy(&sections[i], data + header.e_shoff + i * header.e_shentsize, sizeof(Elf64_Shdr));
    auto text_at = [&](const Elf64_Shdr &strings, size_t offset) {
        return std::string(reinterpret_cast<const char *>(data + strings.sh_offset + offset));
    };
    for (const Elf64_Shdr &section : sections) {
        if (section.sh_type == SHT_DYNSYM) {
            const Elf64_Shdr &strings = sections[section.sh_link];
            for (size_t off = section.sh_entsize; off < section.sh_size; off += section.sh_entsize) {
                Elf64_Sym sym;
                memcpy(&sym, data + section.sh_offset + off, sizeof sym);
                const std::string name = text_at(strings, sym.st_name);
                const int bind = ELF64_ST_BIND(sym.st_info);
                if (sym.st_shndx == SHN_UNDEF)
                    info.undefined.insert(name);
                else if ((bind == STB_GLOBAL || bind == STB_WEAK) && ELF64_ST_VISIBILITY(sym.st_other) == STV_DEFAULT)
                    info.exported.insert(name);
            }
        } else if (section.sh_type == SHT_DYNAMIC) {
            const Elf64_Shdr &strings = sections[section.sh_link];
            for (size_t off = 0; off + sizeof(Elf64_Dyn) <= section.sh_size; off += sizeof(Elf64_Dyn)) {
                Elf64_Dyn entry;
                memcpy(&entry, data + section.sh_offset + off, sizeof entry);
                if (entry.d_tag == DT_NEEDED)
                    info.needed.push_back(text_at(strings, entry.d_un.d_val));
            }
        }
    }
    return info;
}

// The functions the public headers declare with MW_API: the umbrella header
// and every header it includes beside it.
std::set<std::string> declared_api()
{
    const std::string path = MW_HEADER_PATH;
    const std::string dir = path.substr(0, path.rfind('/') + 1);
    std::string text = read_file(path.c_str());
    std::istringstream umbrella(text);
    std::string line;
    while (std::getline(umbrella, line))
        if (line.rfind("#include \"", 0) == 0)
            text += read_file((dir + line.substr(10, line.find('"', 10) - 10)).c_str());
    // Preprocessor lines (the macro's own definition among them) are not declarations.
    std::istringstream lines(text);
    std::string header;
    while (std::getline(lines, line))
        if (line.find_first_not_of(" \t") == std::string::npos || line[line.find_first_not_of(" \t")] != '#')
            header += line + "\n";
    // Each declaration: MW_API, the result type, the name, then its "(".
    std::set<std::string> names;
    for (size_t at = header.find("MW_API"); at != std::string::npos; at = header.find("MW_API", at + 1)) {
        size_t paren = header.find('(', at);
        if (paren == std::string::npos)
            break;
        size_t end = paren;
        while (end > at && isspace(static_cast<unsigned char>(header[end - 1])))
            --end;
        size_t begin = end;
        while (begin > at && (isalnum(static_cast<unsigned char>(header[begin - 1])) || header[begin - 1] == '_'))
            --begin;
        names.insert(header.substr(begin, end - begin));
    }
    return names;
}

TEST(SharedObject, ExportsExactlyTheDeclaredApi)
{
    const std::set<std::string> api = declared_api();
    const DynamicInfo info = read_dynamic(read_file(MW_LIBRARY_PATH));
    ASSERT_GT(api.size(), 20u);
    std::vector<std::string> undeclared, missing;
    std::set_difference(info.exported.begin(), info.exported.end(), api.begin(), api.end(),
                        std::back_inserter(undeclared));
    std::set_difference(api.begin(), api.end(), info.exported.begin(), info.exported.end(),
                        std::back_inserter(missing));
    EXPECT_TRUE(undeclared.empty()) << "exported but not in the header: " << ::testing::PrintToString(undeclared);
    EXPECT_TRUE(missing.empty()) << "declared but not exported: " << ::testing::PrintToString(missing);
}

TEST(SharedObject, NeedsOnlyLibcAndLibcjson)
{
    const DynamicInfo info = read_dynamic(read_file(MW_LIBRARY_PATH));
    std::set<std::string> needed(info.needed.begin(), info.needed.end());
    if (MW_SANITIZED) {
        // The sanitizer build brings its own run-time libraries along.
        for (auto it = needed.begin(); it != needed.end();)
            it = (it->rfind("libasan", 0) == 0 || it->rfind("libubsan", 0) == 0 || it->rfind("libstdc++", 0) == 0 ||
                  it->rfind("libgcc_s", 0) == 0 || it->rfind("libm.", 0) == 0)
                     ? needed.erase(it)
                     : std::next(it);
    }
    EXPECT_EQ(needed, (std::set<std::string>{"libc.so.6", "libcjson.so.1"}));
}

TEST(SharedObject, TakesThePlatformFunctionsFromThePlatformLibrary)
{
    const DynamicInfo info = read_dynamic(read_file(MW_LIBRARY_PATH));
    for (const char *name : {"__zk_malloc", "get_module_permission_string", "get_new_module_push_name"})
        EXPECT_EQ(info.exported.count(name), 0u) << name << " must not be defined here";
    EXPECT_EQ(info.undefined.count("__zk_malloc"), 1u);
    // Nothing of the C++ run time: no operator new/delete, no exception or
    // RTTI support routines (__cxa_finalize is the C library's own).
    for (const std::string &name : info.undefined) {
        if (name == "__cxa_finalize")
            continue;
        EXPECT_NE(name.rfind("_Zn", 0), 0u) << name;
        EXPECT_NE(name.rfind("_Zd", 0), 0u) << name;
        EXPECT_NE(name.rfind("__cxa_", 0), 0u) << name;
        EXPECT_NE(name.rfind("__gxx_", 0), 0u) << name;
        EXPECT_NE(name.rfind("_Unwind_", 0), 0u) << name;
    }
}

} // namespace
