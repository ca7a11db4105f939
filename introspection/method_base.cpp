#include "introspection/method_base.h"

#include "introspection/lists.h"
#include "introspection/parameter_info.h"
#include "runtime/frame.h"
#include "runtime/tavrik_module.h"

namespace tavrik::Introspection {
namespace {

bool is_digit(char c) { return c >= '0' && c <= '9'; }
bool continues_character(char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; }

std::size_t skip_digits(std::string_view text, std::size_t at) {
    while (at < text.size() && is_digit(text[at])) ++at;
    return at;
}

// Behind the ">" that balances the "<" at this place; the text's end, if there is none.
std::size_t skip_group(std::string_view text, std::size_t at) {
    int depth = 0;
    for (; at < text.size(); ++at) {
        if (text[at] == '<') ++depth;
        if (text[at] == '>' && --depth == 0) return at + 1;
    }
    return at;
}

// The length of the parameter code at the front: "&", one array level, one character of any kind, a width, a group.
std::size_t code_length(std::string_view text) {
    std::size_t at = text.starts_with('&') ? 1 : 0;
    if (at < text.size() && text[at] == 'A') at = skip_digits(text, at + 1);
    ++at;
    while (at < text.size() && continues_character(text[at])) ++at;
    at = skip_digits(text, at);
    if (at < text.size() && text[at] == '<') at = skip_group(text, at);
    return std::min(at, text.size());
}

}  // namespace

void MethodBase::read(ClassRecord* owner, const MethodRecord* method) {
    MemberInfo::read(owner, method);
    if (method == nullptr) return;
    mSignature = String(method->signature);
    mReturnTypeCode = Tavrik::NthField(mSignature, "%"_s, 2);
    ParseParameterList(Tavrik::NthField(mSignature, "%"_s, 3));
    mVector = method->function;
    mInvoker = method->invoker;
}

void construct_method(MethodBase* self, void* owner, void* record) {
    const Frame frame(self);
    self->read(static_cast<ClassRecord*>(owner), static_cast<const MethodRecord*>(record));
}

namespace {

Ref<ArrayOf<ParameterInfo>> get_parameters(MethodBase* self) {
    const Frame frame(self);
    return copy_of<ParameterInfo>(self->mParamList);
}

void parse_parameter_list(MethodBase* self, const String& text) {
    const Frame frame(self, text);
    const auto parameters = Ref<ArrayOf<ParameterInfo>>(self->mParamList);
    parameters->resize(-1);
    for (std::string_view rest = text.view(); !rest.empty();) {
        const std::size_t length = code_length(rest);
        const Ref<ParameterInfo> parameter = make<ParameterInfoImp>();
        parameter->Constructor(String(rest.substr(0, length)));
        parameters->append(parameter);
        rest.remove_prefix(length);
        RuntimeBackgroundTask();
    }
}

constexpr OperationRow kOperations[] = {
    overrides<MethodBase, &MemberInfo::Constructor, construct_method>("Constructor").not_public(),
    operation<&MethodBase::GetParameters, get_parameters>("GetParameters"),
    operation<&MethodBase::ParseParameterList, parse_parameter_list>("ParseParameterList").not_public(),
};

constexpr FieldRow kFields[] = {
    field<&MethodBase::mVector>("mVector"),
    field<&MethodBase::mSignature>("mSignature"),
    field<&MethodBase::mReturnTypeValue>("mReturnTypeValue"),
    field<&MethodBase::mInvoker>("mInvoker"),
    field<&MethodBase::mParamList>("mParamList"),
    field<&MethodBase::mReturnTypeCode>("mReturnTypeCode"),
};

}  // namespace

const ClassDefinition& MethodBase::definition() {
    static constexpr ClassDefinition kDefinition = define<MethodBase>({
        .operations = kOperations,
        .fields = kFields,
    });
    return kDefinition;
}

}  // namespace tavrik::Introspection
