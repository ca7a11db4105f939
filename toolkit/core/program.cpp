#include "toolkit/core/program.h"

#include "toolkit/core/application.h"
#include "toolkit/core/event_scope.h"
#include "toolkit/core/executable.h"
#include "toolkit/core/folder_item.h"
#include "toolkit/core/main_thread.h"
#include "toolkit/core/path.h"
#include "toolkit/core/polls.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/scheduler.h"
#include "toolkit/core/streams.h"
#include "toolkit/core/wake_up.h"
#include "toolkit/core/window_list.h"
#include "toolkit/front/choose.h"

#include <tavrik/runtime.h>

#include <algorithm>
#include <cstdio>
#include <iterator>
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

class Desktop final : public front::ApplicationListener {
public:
    void quit_requested() override {
        deliver([] { quit(); });
    }
    void woken() override { wake_up().woken(); }
    void activated(bool active) override;
    void open_documents(std::span<const std::string> paths) override;
};

struct Program {
    Desktop desktop;
    std::unique_ptr<front::Front> front;
    Ref<Object> app;
    bool takes_documents = false;                // once it has opened
    std::vector<std::string> documents_to_open;  // from before that
    bool is_active = false;
    bool has_quit = false;
    std::int32_t exit_status = 0;
    std::vector<void (*)()> at_exit;
};

Program& program() {
    static auto* const the_program = new Program;  // outlives every static object that might ask for it
    return *the_program;
}

constinit Operation<void()> call_open{"Application", "_CallOpen", "%%"};
constinit Operation<void()> new_document{"Application", "NewDocument", "%%"};
constinit Operation<void(Object*)> open_document{"Application", "OpenDocument", "%%o<FolderItem>"};
constinit Event<void()> application_closed{"Application", "Close"};
constinit Event<void()> application_activated{"Application", "Activate"};
constinit Event<void()> application_deactivated{"Application", "Deactivate"};
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

void Desktop::activated(bool active) {
    if (std::exchange(program().is_active, active) == active) return;
    deliver([active] {
        const Ref<Object> app = program().app;
        if (app) (active ? application_activated : application_deactivated)(app.object());
    });
}

// Each is an event of its own: one that fails keeps none of the others out.
void open_all(const std::vector<std::string>& paths) {
    for (const std::string& path : paths) {
        deliver([&path] {
            const Program& the = program();
            if (the.app && !the.has_quit) open_document(the.app.object(), make_folder_item(path).object());
        });
    }
}

void Desktop::open_documents(std::span<const std::string> paths) {
    Program& the = program();
    if (the.takes_documents) return open_all({paths.begin(), paths.end()});
    the.documents_to_open.insert(the.documents_to_open.end(), paths.begin(), paths.end());
}

// What the program begins with: the documents that it was started with, or a new one.
void begin_with_documents() {
    Program& the = program();
    the.takes_documents = true;
    std::vector<std::string> documents = documents_among(program_arguments());
    std::ranges::move(std::exchange(the.documents_to_open, {}), std::back_inserter(documents));
    if (!documents.empty()) return open_all(documents);
    deliver([&the] {
        if (the.app && !the.has_quit) new_document(the.app.object());
    });
}

void tell_new_front() {
    if (!has_front()) return;
    wake_up().tell_new_front();
    if (const Ref<Object> app = program().app) tell_front_of(app.object());
}

}  // namespace

std::string program_name() {
    const std::string path = executable_path();
    return path.empty() ? "program" : std::string(name_of(path));
}

front::Front& front(const char* call) {
    need_main_thread(call);
    Program& the = program();
    if (!the.front) {
        the.front = front::choose_front({program_name(), the.desktop});
        tell_new_front();
    }
    return *the.front;
}

front::ApplicationListener& desktop() { return program().desktop; }

bool has_front() { return program().front != nullptr; }

void use_front(std::unique_ptr<front::Front> front) {
    program().front = std::move(front);
    program().has_quit = false;
    program().is_active = false;
    tell_new_front();
}

bool has_quit() { return program().has_quit; }

bool quit(const char* call) {
    need_main_thread(call);
    return on_main_stack(quit_from_main_stack);
}

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
    core::begin_with_documents();
    if (!program.has_quit) core::front().run();
    program.takes_documents = false;
    core::scheduler().end_all();
}

void RuntimeAtExit(void (*function)()) { core::program().at_exit.push_back(function); }

std::int32_t RuntimeExit() {
    core::Program& program = core::program();
    core::scheduler().end_all();
    core::deliver([] { core::close_all_windows(core::AppIsQuitting::kNoMatterWhat); });
    core::deliver([&] {
        core::polls().clear();
        program.app = nullptr;
    });
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
