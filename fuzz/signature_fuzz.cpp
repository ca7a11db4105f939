// Signatures and type codes, as the records' reader and the type information read them.
#include "introspection/method_base.h"
#include "introspection/method_info.h"
#include "introspection/parameter_info.h"
#include "introspection/type_codes.h"
#include "maptool/initialize.h"
#include "runtime/signature.h"

#include <tavrik/runtime.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace tavrik {
namespace {

// A rank makes a name with as many commas.
constexpr std::size_t kLongestRank = 4;

[[noreturn]] void fail() { std::abort(); }

std::size_t longest_number(std::string_view text) {
    std::size_t longest = 0;
    std::size_t length = 0;
    for (const char c : text) {
        length = c >= '0' && c <= '9' ? length + 1 : 0;
        longest = std::max(longest, length);
    }
    return longest;
}

// Every parameter of a text that is a signature is seen alike by both readers, unless it is an array of arrays.
void read_parameters(std::string_view text) {
    const Ref<Introspection::MethodInfo> method = make<Introspection::MethodInfoImp>();
    const std::size_t second = text.find('%', 1);
    const std::string_view list = second == std::string_view::npos ? text : text.substr(second + 1);
    method->ParseParameterList(String(list));
    const auto parameters = method->GetParameters();

    const auto signature = split_signature(text);
    if (!signature) return;
    for (const std::string_view code : signature->parameters) {
        if (code.find('A', code.find('A') + 1) != std::string_view::npos) return;
    }
    if (parameters->upper_bound() + 1 != static_cast<std::int32_t>(signature->parameters.size())) fail();
    for (std::int32_t i = 0; i <= parameters->upper_bound(); ++i) {
        const bool is_by_reference = signature->parameters[static_cast<std::size_t>(i)].starts_with('&');
        if (parameters->at(i)->IsByRef() != is_by_reference) fail();
    }
}

// One code is one type, though a class may have several descriptions; only a type that isn't there makes an array of it
// fail.
void resolve(std::string_view text) {
    if (longest_number(text) > kLongestRank) return;
    const String code(text);
    try {
        const Ref<Introspection::TypeInfo> first = Introspection::GetInfoFromTypeCode(code);
        const Ref<Introspection::TypeInfo> second = Introspection::GetInfoFromTypeCode(code);
        if (!first != !second || (first && !(first->FullName() == second->FullName()))) fail();
    } catch (const RaisedException& raised) {
        if (view(raised.exception->record->name) != "NilObjectException") fail();
    }
}

}  // namespace
}  // namespace tavrik

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool started = [] {
        tavrik::RuntimeInit();
        tavrik::initialize();
        return true;
    }();
    static_cast<void>(started);
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    tavrik::read_parameters(text);
    tavrik::resolve(text);
    tavrik::Introspection::release_types();
    return 0;
}
