#include <ZQ7Standard/GridValueObject.h>

#include <array>
#include <memory>
#include <utility>

#include "automation/catalogue_rows.h"
#include "automation/classes.h"
#include "base/raise.h"

namespace ZQ7Standard::Automation {
namespace {

using enum Effect;

/// Passes on the events of a grid.
class GridEvents final : public GridValueListener {
 public:
  explicit GridEvents(std::shared_ptr<EventSink> sink) : sink_(std::move(sink)) {}

  void CellDataChange(std::int32_t Row, std::int32_t Col) override {
    const std::array<Value, 2> arguments = {Row, Col};
    static const EventInfo& event = *FindEvent(*FindClass("GridValueObject"), "CellDataChange");
    sink_->Raise(event, arguments);
  }

 private:
  std::shared_ptr<EventSink> sink_;
};

std::shared_ptr<void> SubscribeToGrid(std::shared_ptr<void> instance,
                                      std::shared_ptr<EventSink> sink) {
  auto grid = std::static_pointer_cast<GridValueObject>(std::move(instance));
  auto events = std::make_shared<GridEvents>(std::move(sink));
  grid->AddListener(events);
  return {events.get(), [grid, events](void*) { grid->RemoveListener(*events); }};
}

/// A grid of three columns and two rows, the second row beginning with 1 and 2.
const std::vector<Call> kTwoRows = {
    {"SetFirst", {1, 3, 0, 0}}, {"Setvalue", {1, 0, 1.0}}, {"Setvalue", {1, 1, 2.0}}};

}  // namespace

ClassRow GridValueObjectRows() {
  ClassRow info = {.name = "GridValueObject",
                   .create = [](const Services&) -> std::shared_ptr<void> {
                     return std::make_shared<GridValueObject>();
                   },
                   .subscribe = SubscribeToGrid};
  info.properties = {Property<&GridValueObject::Rows>(1, "Rows"),
                     Property<&GridValueObject::Cols>(2, "Cols"),
                     Property<&GridValueObject::FixedRows>(3, "FixedRows"),
                     Property<&GridValueObject::FixedCols>(4, "FixedCols")};
  info.events = {Event<&GridValueListener::DataChange>(15, "DataChange", {}),
                 Event<&GridValueListener::CellDataChange>(16, "CellDataChange",
                                                           {ByRef("Row"), ByRef("Col")})};
  AddOperations(
      info,
      {Operation<&GridValueObject::SetFirst>(5, "SetFirst", kInstance,
                                             {"Rows", "Cols", "FixedCols", "FixedRows"},
                                             {{{1, 3, 1, 0}, true}, {{1, 0, 0, 0}, false}}),
       Operation<&GridValueObject::SetRows>(6, "SetRows", kInstance, {"Rows"}, {{{5}}}),
       Operation<&GridValueObject::SetCols>(7, "SetCols", kInstance, {"Cols"}, {{{3}}}),
       Operation<&GridValueObject::Setvalue>(
           8, "Setvalue", kInstance, {"Row", "Col", "Value"},
           {{{4, 2, 12.5}, true, {{"SetCols", {3}}}}, {{0, 3, 12.5}, false, {{"SetCols", {3}}}}}),
       Operation<&GridValueObject::GetValue>(9, "GetValue", kInstance, {"Row", "Col"},
                                             {{{1, 1}, 2, kTwoRows}, {{0, 0}, Raises(9)}}),
       Operation<&GridValueObject::RemaveItem>(10, "RemaveItem", kInstance, {"Row"},
                                               {{{0}, Omitted{}, kTwoRows}}),
       Operation<&GridValueObject::ResetRow>(11, "ResetRow", kInstance, {"Row"},
                                             {{{1}, Omitted{}, kTwoRows}}),
       Operation<&GridValueObject::Clear>(12, "Clear", kInstance, {{{}, Omitted{}, kTwoRows}}),
       Operation<&GridValueObject::SumCol>(13, "SumCol", kInstance, {"Col"}, {{{1}, 2, kTwoRows}}),
       Operation<&GridValueObject::SumRow>(14, "SumRow", kInstance, {"Row"},
                                           {{{1}, 3, kTwoRows}})});
  return info;
}

}  // namespace ZQ7Standard::Automation
