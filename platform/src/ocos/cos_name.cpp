// The process-wide intern table. It is never destroyed, so names stay valid
// while other statics are torn down at exit.
#include <orrery/ocos/cos_name.hpp>

#include <mutex>
#include <set>

namespace orrery::ocos {

namespace {

struct InternTable {
    std::mutex mutex;
    std::set<std::string, std::less<>> names;
};

InternTable& table() {
    static auto* instance = new InternTable;
    return *instance;
}

}  // namespace

COSName intern(std::string_view text) {
    InternTable& t = table();
    const std::lock_guard lock(t.mutex);
    auto found = t.names.find(text);
    if (found == t.names.end()) found = t.names.emplace(text).first;
    return COSName(&*found);
}

COSName::COSName() : COSName(intern("")) {}

}  // namespace orrery::ocos
