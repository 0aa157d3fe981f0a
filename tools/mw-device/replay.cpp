#include "replay.h"

#include <strings.h>

namespace device {

bool RecentResponses::first_use(const std::string &value, uint64_t now)
{
    std::lock_guard<std::mutex> guard(lock_);
    while (!order_.empty() && (order_.size() >= kEntries || now - order_.front().first > kSeconds)) {
        seen_.erase(order_.front().second);
        order_.pop_front();
    }
    if (!seen_.insert(value).second)
        return false;
    order_.emplace_back(now, value);
    return true;
}

bool digest_response(const std::string &field, std::string *value)
{
    // Digest name=value, name="quoted \" value", ...
    size_t i = field.find(' ');
    if (i == std::string::npos)
        return false;
    unsigned found = 0;
    const size_t n = field.size();
    while (i < n) {
        while (i < n && (field[i] == ' ' || field[i] == '\t' || field[i] == ','))
            ++i;
        const size_t nameStart = i;
        while (i < n && field[i] != '=' && field[i] != ',' && field[i] != ' ')
            ++i;
        const std::string name = field.substr(nameStart, i - nameStart);
        while (i < n && field[i] == ' ')
            ++i;
        if (i >= n || field[i] != '=')
            continue;
        ++i;
        while (i < n && field[i] == ' ')
            ++i;
        std::string text;
        if (i < n && field[i] == '"') {
            for (++i; i < n && field[i] != '"'; ++i) {
                if (field[i] == '\\' && i + 1 < n)
                    ++i;
                text += field[i];
            }
            ++i; // the closing quote
        } else {
            while (i < n && field[i] != ',' && field[i] != ' ' && field[i] != '\t')
                text += field[i++];
        }
        if (strcasecmp(name.c_str(), "response") == 0) {
            *value = text;
            ++found;
        }
    }
    return found == 1 && !value->empty();
}

} // namespace device
