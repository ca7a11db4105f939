#include "runtime/exceptions.h"

namespace tavrik {
namespace {

constexpr OperationRow kOperations[] = {
    operation<&RuntimeException::Stack, RuntimeExceptionStack>("Stack"),
};

constexpr PropertyRow kProperties[] = {
    stored<&RuntimeException::mMessage>("Message"),
    stored<&RuntimeException::mErrorNumber>("ErrorNumber"),
};

}  // namespace

const ClassDefinition& RuntimeException::definition() {
    static constexpr ClassDefinition kDefinition = define<RuntimeException>({
        .init = init_forwards_to<RuntimeException, RuntimeExceptionInitializer>,
        .exit = exit_forwards_to<RuntimeException, RuntimeExceptionFinalizer>,
        .operations = kOperations,
        .properties = kProperties,
    });
    return kDefinition;
}

}  // namespace tavrik
