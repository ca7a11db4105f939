#include "toolkit/core/program.h"

#include "toolkit/core/event_scope.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/scheduler.h"
#include "toolkit/core/streams.h"
#include "toolkit/core/window_list.h"
#include "toolkit/front/choose.h"

#include <tavrik/runtime.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <utility>
#include <vector>

namespace tavrik {
namespace core {
namespace {

#ifdef NDEBUG
constexpr bool kListsLiveObjects = false;
#else
constexpr bool kListsLiveObjects = true;
#endif

class Quitter final : public front::ApplicationListener {
public:
    void quit_requested() override {
        deliver([] { quit(); });
    }
    void run_threads() override { scheduler().run_threads(); }
};

struct Program {
    Quitter quitter;
    std::unique_ptr<front::Front> front;
    Ref<Object> app;
    bool has_quit = false;
    std::int32_t exit_status = 0;
    std::vector<void (*)()> at_exit;
};

Program& program() {
    static auto* const the_program = new Program;  // outlives every static object that might ask for it
    return *the_program;
}

constinit Operation<void()> call_open{"Application", "_CallOpen", "%%"};
constinit Event<void()> application_closed{"Application", "Close"};
constinit Event<bool(bool)> cancel_close{"Application", "CancelClose"};

void list_live_objects() {
    if (RuntimeLiveObjects() == 0) return;
    std::fprintf(stderr, "objects still alive:\n");
    for (std::int32_t number = 1; const ClassRecord* record = RuntimeClassWithNumber(number); ++number) {
        const auto live = static_cast<long long>(RuntimeLiveObjects(record));
        if (live != 0)
            std::fprintf(stderr, "  %.*s: %lld\n", int(view(record->name).size()), view(record->name).data(), live);
    }
}

std::string message_of(Object* exception) {
    std::string message(text_property(exception, "Message").view());
    if (!message.empty()) return message;
    return std::string(view(exception->record->name)) + " was raised, and nothing in the program handled it.";
}

bool quit_from_main_stack() {
    Program& the = program();
    if (the.has_quit) return true;
    if (the.app && cancel_close(the.app.object(), true)) return false;
    if (!close_all_windows(AppIsQuitting::kYes)) return false;
    if (the.app) application_closed(the.app.object());
    the.has_quit = true;
    if (the.front) the.front->quit();
    return true;
}

}  // namespace

std::string program_name() {
    std::error_code error;
    const std::filesystem::path path = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? "program" : path.filename().string();
}

front::Front& front() {
    Program& the = program();
    if (!the.front) {
        the.front = front::choose_front({program_name(), the.quitter});
        scheduler().tell_new_front();
    }
    return *the.front;
}

bool has_front() { return program().front != nullptr; }

void use_front(std::unique_ptr<front::Front> front) {
    program().front = std::move(front);
    program().has_quit = false;
    scheduler().tell_new_front();
}

bool has_quit() { return program().has_quit; }

bool quit() { return on_main_stack(quit_from_main_stack); }

std::size_t show_message(const front::MessageDescription& message) { return show_message(message, frontmost_face); }

std::size_t show_message(const front::MessageDescription& message, const std::function<front::WindowFace*()>& over) {
    flush_all_streams();
    return on_main_stack([&] { return front().show_message(message, over()); });
}

void tell_failure(std::string_view text) {
    if (!has_front()) {
        std::fprintf(stderr, "%s: %.*s\n", program_name().c_str(), static_cast<int>(text.size()), text.data());
        return;
    }
    show_message({.text = std::string(text), .icon = front::MessageIcon::kCaution});
}

}  // namespace core

void RuntimeInit() { check_stack(); }

void RuntimeInitExternalClasses() {}

// Tables live as long as the process.
void* RuntimeAllocatePluginEntrypointsTable(std::int32_t entries) {
    static auto* const tables = new std::vector<std::unique_ptr<Function[]>>;
    return tables->emplace_back(std::make_unique<Function[]>(static_cast<std::size_t>(std::max(entries, 1)))).get();
}

void RuntimeRegisterAppObject(Object* app) { core::program().app = Ref<Object>(app); }

Ref<Object> getAppObject() { return core::program().app; }

void RuntimeRun() {
    core::Program& program = core::program();
    if (program.app) core::deliver([&] { core::call_open(program.app.object()); });
    if (!program.has_quit) core::front().run();
    core::scheduler().end_all();
}

void RuntimeAtExit(void (*function)()) { core::program().at_exit.push_back(function); }

std::int32_t RuntimeExit() {
    core::Program& program = core::program();
    core::scheduler().end_all();
    core::deliver([] { core::close_all_windows(core::AppIsQuitting::kNoMatterWhat); });
    core::deliver([&] { program.app = nullptr; });
    program.front = nullptr;
    while (!program.at_exit.empty()) {
        const auto function = program.at_exit.back();
        program.at_exit.pop_back();
        core::deliver(function);
    }
    if (core::kListsLiveObjects) core::list_live_objects();
    return std::exchange(program.exit_status, 0);
}

void RuntimeUnhandledException(Object* exception) {
    if (exception == nullptr || RuntimeObjectIsa(exception, RuntimeFindClass("EndException"))) return;
    if (core::is_end_of_thread(exception)) return;
    // Outside of an event nothing has caught it before the run loop ended.
    if (!core::EventScope::inside_event()) core::program().exit_status = 1;
    core::tell_failure(core::message_of(exception));
}

}  // namespace tavrik
