#include <ZQ7Standard/GridValueObject.h>

#include <array>
#include <memory>
#include <utility>

#include "automation/classes.h"
#include "automation/rows.h"
#include "base/raise.h"

namespace ZQ7Standard::Automation {
namespace {

const std::vector<EventInfo>& Events() {
  static const std::vector<EventInfo> events = {
      {.name = "DataChange", .help = "Declared only, and never raised."},
      {.name = "CellDataChange",
       .parameters = {{.name = "Row", .type = {Type::kLong}, .by_reference = true},
                      {.name = "Col", .type = {Type::kLong}, .by_reference = true}},
       .help = "A cell was given a value and holds it. Rows and columns count from 0."}};
  return events;
}

/// Passes the events of a grid on.
class GridEvents final : public GridValueListener {
 public:
  explicit GridEvents(std::shared_ptr<EventSink> sink) : sink_(std::move(sink)) {}

  void CellDataChange(std::int32_t Row, std::int32_t Col) override {
    const std::array<Value, 2> arguments = {Row, Col};
    sink_->Raise(Events()[1], arguments);
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

/// A grid of three columns and two rows, the second with 1 and 2 in its first cells.
const std::vector<Call> kTwoRows = {
    {"SetFirst", {1, 3, 0, 0}}, {"Setvalue", {1, 0, 1.0}}, {"Setvalue", {1, 1, 2.0}}};

}  // namespace

ClassInfo GridValueObjectEntry() {
  ClassInfo info = {
      .name = "GridValueObject",
      .help = "The numbers behind a grid on the screen, with sums and a change event.",
      .events = Events(),
      .create = [](const Services&) -> std::shared_ptr<void> {
        return std::make_shared<GridValueObject>();
      },
      .subscribe = SubscribeToGrid};
  info.properties = {
      Property<&GridValueObject::Rows>("Rows", "The number of rows; 1 on a new grid."),
      Property<&GridValueObject::Cols>("Cols", "The number of columns; -1 until they are set."),
      Property<&GridValueObject::FixedRows>("FixedRows", "The number of heading rows."),
      Property<&GridValueObject::FixedCols>("FixedCols", "The number of heading columns.")};
  AddSubject(
      info, "",
      {Operation<&GridValueObject::SetFirst>("SetFirst", {"Rows", "Cols", "FixedCols", "FixedRows"},
                                             "Sets the columns of a new grid, and its headings.",
                                             {{{1, 3, 1, 0}, true}, {{1, 0, 0, 0}, false}}),
       Operation<&GridValueObject::SetRows>("SetRows", {"Rows"}, "Sets the number of rows.",
                                            {{{5}}}),
       Operation<&GridValueObject::SetCols>("SetCols", {"Cols"},
                                            "Sets the number of columns, once.", {{{3}}}),
       Operation<&GridValueObject::Setvalue>(
           "Setvalue", {"Row", "Col", "Value"},
           "Stores a number in a cell and tells the listeners.",
           {{{4, 2, 12.5}, true, {{"SetCols", {3}}}}, {{0, 3, 12.5}, false, {{"SetCols", {3}}}}}),
       Operation<&GridValueObject::GetValue>("GetValue", {"Row", "Col"}, "The number in a cell.",
                                             {{{1, 1}, 2, kTwoRows}, {{0, 0}, Raises(9)}}),
       Operation<&GridValueObject::RemaveItem>("RemaveItem", {"Row"}, "Deletes a row.",
                                               {{{0}, Omitted{}, kTwoRows}}),
       Operation<&GridValueObject::ResetRow>("ResetRow", {"Row"}, "Sets the data of a row to 0.",
                                             {{{1}, Omitted{}, kTwoRows}}),
       Operation<&GridValueObject::Clear>("Clear", "Leaves the headings and one blank row.",
                                          {{{}, Omitted{}, kTwoRows}}),
       Operation<&GridValueObject::SumCol>("SumCol", {"Col"}, "The sum of a column's data.",
                                           {{{1}, 2, kTwoRows}}),
       Operation<&GridValueObject::SumRow>("SumRow", {"Row"}, "The sum of a row's data.",
                                           {{{1}, 3, kTwoRows}})});
  return info;
}

}  // namespace ZQ7Standard::Automation
