// Hash tables with text keys and number values. The keys looked up are equal texts in other objects than the stored
// ones, made in the order in which they are looked up, and every result is read.
#include "data/dictionary.h"

#include "data/variants.h"

#include <QHash>
#include <QString>
#include <QVariant>
#include <benchmark/benchmark.h>

#include <glib.h>

#include <any>
#include <numeric>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

namespace tavrik::bench {
namespace {

constexpr std::int32_t kFound = 100'000;
constexpr std::int32_t kInserted = 1'000'000;

struct FreeTable {
    void operator()(GHashTable* table) const { g_hash_table_unref(table); }
};

// Each way to keep a table: how a key is made, a number stored and found.
struct Ours {
    using Key = Ref<Variant>;
    static Key key(const std::string& text) { return StringToVariant(String(text)); }
    static Ref<Variant> value(std::int32_t number) { return Int32ToVariant(number); }
    void store(const Key& key, const Ref<Variant>& value) { table->set_Value(key, value); }
    std::int32_t find(const Key& key) const { return VariantToInt32(table->Value(key).object()); }

    Ref<Dictionary> table = make<Dictionary>();
};

struct Qt {
    using Key = QString;
    static Key key(const std::string& text) { return QString::fromStdString(text); }
    static QVariant value(std::int32_t number) { return number; }
    void store(const Key& key, const QVariant& value) { table.insert(key, value); }
    std::int32_t find(const Key& key) const { return table.value(key).toInt(); }

    QHash<QString, QVariant> table;
};

// With values that tell their type, as those of the others do. A value that is found is borrowed, not counted.
struct GLib {
    using Key = std::unique_ptr<gchar, decltype(&g_free)>;
    using Value = std::unique_ptr<GVariant, decltype(&g_variant_unref)>;
    static Key key(const std::string& text) { return {g_strdup(text.c_str()), &g_free}; }
    static Value value(std::int32_t number) {
        return {g_variant_ref_sink(g_variant_new_int32(number)), &g_variant_unref};
    }
    void store(const Key& key, const Value& value) {
        g_hash_table_insert(table.get(), key.get(), g_variant_ref(value.get()));
    }
    std::int32_t find(const Key& key) const {
        return g_variant_get_int32(static_cast<GVariant*>(g_hash_table_lookup(table.get(), key.get())));
    }

    std::unique_ptr<GHashTable, FreeTable> table{g_hash_table_new_full(
        g_str_hash, g_str_equal, nullptr, [](gpointer value) { g_variant_unref(static_cast<GVariant*>(value)); })};
};

// With numbers in the place of pointers: no value is boxed, and none is counted.
struct PlainGLib {
    using Key = GLib::Key;
    static Key key(const std::string& text) { return GLib::key(text); }
    static gpointer value(std::int32_t number) { return GINT_TO_POINTER(number); }
    void store(const Key& key, gpointer value) { g_hash_table_insert(table.get(), key.get(), value); }
    std::int32_t find(const Key& key) const { return GPOINTER_TO_INT(g_hash_table_lookup(table.get(), key.get())); }

    std::unique_ptr<GHashTable, FreeTable> table{g_hash_table_new(g_str_hash, g_str_equal)};
};

struct Standard {
    using Key = std::string;
    static Key key(const std::string& text) { return text; }
    static std::any value(std::int32_t number) { return number; }
    void store(const Key& key, const std::any& value) { table.insert_or_assign(key, value); }
    std::int32_t find(const Key& key) const { return std::any_cast<std::int32_t>(table.find(key)->second); }

    std::unordered_map<std::string, std::any> table;
};

std::string text_of(std::int32_t number) { return "key " + std::to_string(number); }

template <class Table>
void find_text_key(benchmark::State& state) {
    Table table;
    std::vector<typename Table::Key> stored;
    for (std::int32_t number = 0; number < kFound; ++number) {
        stored.push_back(Table::key(text_of(number)));
        table.store(stored.back(), Table::value(number));
    }
    std::vector<std::int32_t> order(kFound);
    std::iota(order.begin(), order.end(), 0);
    std::shuffle(order.begin(), order.end(), std::mt19937{7});
    std::vector<typename Table::Key> sought;
    for (const std::int32_t number : order) sought.push_back(Table::key(text_of(number)));

    auto key = sought.begin();
    for (auto _ : state) {
        benchmark::DoNotOptimize(table.find(*key));
        if (++key == sought.end()) key = sought.begin();
    }
}

template <class Table>
void insert_text_keys(benchmark::State& state) {
    std::vector<typename Table::Key> keys;
    std::vector<decltype(Table::value(0))> values;
    for (std::int32_t number = 0; number < kInserted; ++number) {
        keys.push_back(Table::key(text_of(number)));
        values.push_back(Table::value(number));
    }
    for (auto _ : state) {
        Table table;
        for (std::size_t i = 0; i < keys.size(); ++i) table.store(keys[i], values[i]);
        state.PauseTiming();
        { const Table ended = std::move(table); }
        state.ResumeTiming();
    }
}

const auto* const registered = [] {
    const auto insert = [](const char* name, auto* function) {
        return benchmark::RegisterBenchmark(name, function)->Unit(benchmark::kMillisecond);
    };
    benchmark::RegisterBenchmark("find_in_dictionary", find_text_key<Ours>);
    benchmark::RegisterBenchmark("find_in_qhash", find_text_key<Qt>);
    benchmark::RegisterBenchmark("find_in_ghashtable", find_text_key<GLib>);
    benchmark::RegisterBenchmark("find_in_plain_ghashtable", find_text_key<PlainGLib>);
    benchmark::RegisterBenchmark("find_in_unordered_map", find_text_key<Standard>);
    insert("insert_into_dictionary", insert_text_keys<Ours>);
    insert("insert_into_qhash", insert_text_keys<Qt>);
    insert("insert_into_ghashtable", insert_text_keys<GLib>);
    insert("insert_into_plain_ghashtable", insert_text_keys<PlainGLib>);
    return insert("insert_into_unordered_map", insert_text_keys<Standard>);
}();

}  // namespace
}  // namespace tavrik::bench
