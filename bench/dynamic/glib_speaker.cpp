#include "bench/dynamic/glib_speaker.h"

#include <cstring>

namespace tavrik::bench {
namespace {

struct GlibSpeaker {
    GObject parent;
    gint volume;
};
struct GlibSpeakerClass {
    GObjectClass parent;
};

constexpr guint kVolume = 1;

GlibSpeaker* speaker(gpointer object) { return static_cast<GlibSpeaker*>(object); }

void get_property(GObject* object, guint, GValue* value, GParamSpec*) {
    g_value_set_int(value, speaker(object)->volume);
}
void set_property(GObject* object, guint, const GValue* value, GParamSpec*) {
    speaker(object)->volume = g_value_get_int(value);
}

void init_class(gpointer type_class, gpointer) {
    auto* const object_class = static_cast<GObjectClass*>(type_class);
    object_class->get_property = get_property;
    object_class->set_property = set_property;
    g_object_class_install_property(
        object_class, kVolume,
        g_param_spec_int("volume", nullptr, nullptr, G_MININT, G_MAXINT, 0,
                         static_cast<GParamFlags>(G_PARAM_READWRITE | G_PARAM_STATIC_STRINGS)));
}

gboolean say(gpointer self, const gchar* text, gint times, gpointer) {
    return static_cast<gint>(std::strlen(text)) * times > speaker(self)->volume;
}

GType type() {
    static const GType registered = g_type_register_static_simple(
        G_TYPE_OBJECT, "GlibSpeaker", sizeof(GlibSpeakerClass), init_class, sizeof(GlibSpeaker), nullptr, {});
    return registered;
}

}  // namespace

GObject* new_glib_speaker() { return static_cast<GObject*>(g_object_new(type(), nullptr)); }

GClosure* new_glib_closure() {
    GClosure* const closure = g_cclosure_new(reinterpret_cast<GCallback>(&say), nullptr, nullptr);
    g_closure_set_marshal(closure, g_cclosure_marshal_generic);
    g_closure_ref(closure);
    g_closure_sink(closure);
    return closure;
}

}  // namespace tavrik::bench
