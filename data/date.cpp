#include "data/date.h"

#include "runtime/frame.h"

namespace tavrik {
namespace {

void construct_copy(Date* self, Arg<Date> other) {
    const Frame frame(self, other);
    if (!other) return;
    if (other->Operator_Compare(nullptr) == 0) return;
    self->set_TotalSeconds(other->TotalSeconds());
}

constexpr OperationRow kOperations[] = {
    operation<&Date::Operator_Compare, DateCompare>("Operator_Compare"),
    operation<pick<void()>(&Date::Constructor), no_effect>("Constructor"),
    operation<pick<void(Arg<Date>)>(&Date::Constructor), construct_copy>("Constructor"),
    operation<&Date::__DependencyList, no_effect>("__DependencyList").not_public(),
};

constexpr PropertyRow kProperties[] = {
    property<&Date::Year, &Date::set_Year>("Year"),
    property<&Date::Month, &Date::set_Month>("Month"),
    property<&Date::Day, &Date::set_Day>("Day"),
    property<&Date::Hour, &Date::set_Hour>("Hour"),
    property<&Date::Minute, &Date::set_Minute>("Minute"),
    property<&Date::Second, &Date::set_Second>("Second"),
    property<&Date::DayOfWeek>("DayOfWeek"),
    property<&Date::DayOfYear>("DayOfYear"),
    property<&Date::WeekOfYear>("WeekOfYear"),
    property<&Date::ShortDate>("ShortDate"),
    property<&Date::LongDate>("LongDate"),
    property<&Date::AbbreviatedDate>("AbbreviatedDate"),
    property<&Date::ShortTime>("ShortTime"),
    property<&Date::LongTime>("LongTime"),
    property<&Date::TotalSeconds, &Date::set_TotalSeconds>("TotalSeconds"),
    property<&Date::SQLDate, &Date::set_SQLDate>("SQLDate"),
    property<&Date::SQLDateTime, &Date::set_SQLDateTime>("SQLDateTime"),
    property<&Date::GMTOffset, &Date::set_GMTOffset>("GMTOffset"),
};

}  // namespace

const ClassDefinition& Date::definition() {
    static constexpr ClassDefinition kDefinition = define<Date>({
        .init = init_forwards_to<Date, AutoInitDate>,
        .exit = exit_forwards_to<Date, DateFinalizer>,
        .operations = kOperations,
        .properties = kProperties,
    });
    return kDefinition;
}

}  // namespace tavrik
