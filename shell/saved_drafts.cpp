#include "shell/saved_drafts.h"

#include <cstdint>
#include <utility>

#include "runtime/data_file.h"
#include "runtime/failure.h"

namespace orm {
namespace {

constexpr int kMostDrafts = 1000, kMostValues = 1000;

// The kinds of values by their places in FormValues::Value, as numbers in the file.
enum Kind : std::int16_t { kBool, kInt, kDouble, kDate, kText };

template <class T>
void Put(DataWriter& file, std::string name, std::int16_t kind, T value) {
  file.Line(Field("nome", name), Field("genere", kind), Field("valore", value));
}

void PutValue(DataWriter& file, const std::string& name, const FormValues::Value& value) {
  const auto kind = static_cast<std::int16_t>(value.index());
  switch (kind) {
    case kBool:
      return Put(file, name, kind, std::get<bool>(value));
    case kInt:
      return Put(file, name, kind, static_cast<std::int32_t>(std::get<int>(value)));
    case kDouble:
      return Put(file, name, kind, std::get<double>(value));
    case kDate:
      return Put(file, name, kind, ShortDate(std::get<Date>(value)));
    default:
      return Put(file, name, kind, std::get<std::string>(value));
  }
}

FormValues::Value ReadValue(DataReader& file) {
  const std::int16_t kind = file.Integer("genere");
  switch (kind) {
    case kBool:
      return file.Boolean("valore");
    case kInt:
      return static_cast<int>(file.LongInteger("valore"));
    case kDouble:
      return file.Number("valore");
    case kDate: {
      const auto day = ParseDate(file.Text("valore"));
      if (!day) file.Fail("valore", "Non è una data.");
      return *day;
    }
    case kText:
      return file.Text("valore");
    default:
      file.Fail("genere", "Il genere del valore non esiste.");
  }
}

}  // namespace

std::string DraftsText(const Drafts::All& drafts) {
  DataWriter file;
  for (const auto& [key, draft] : drafts) {
    std::string finestra = key;
    auto values = static_cast<std::int16_t>(draft.All().size());
    auto hidden = static_cast<std::int16_t>(draft.Hidden().size());
    file.Line(Field("finestra", finestra), Field("valori", values), Field("altri", hidden));
    for (const auto& [name, value] : draft.All()) PutValue(file, name, value);
    for (std::string text : draft.Hidden()) file.Line(Field("altro", text));
  }
  return file.Bytes();
}

Drafts::All ReadDrafts(std::string_view bytes) {
  DataReader file = DataReader::OfBytes("bozze", bytes);
  Drafts::All drafts;
  while (!file.AtEnd() && drafts.size() < kMostDrafts) {
    const std::string key = file.Text("finestra");
    const std::int16_t values = file.Count("valori", kMostValues);
    const std::int16_t hidden = file.Count("altri", kMostValues);
    FormValues::Values all;
    for (int i = 0; i < values; ++i) {
      std::string name = file.Text("nome");
      all.emplace_back(std::move(name), ReadValue(file));
    }
    std::vector<std::string> others;
    for (int i = 0; i < hidden; ++i) others.push_back(file.Text("altro"));
    drafts[key] = FormValues(std::move(all), std::move(others));
  }
  return drafts;
}

bool SavedDrafts::Load() {
  const auto bytes = file_.TakeOver();
  if (!bytes) return false;
  try {
    Drafts::All left = ReadDrafts(*bytes);
    drafts_.Kept().merge(left);
  } catch (const RuntimeFailure&) {
    return false;
  }
  return !drafts_.Kept().empty();
}

void SavedDrafts::Keep() {
  const Drafts::All now = drafts_.WithOpenForms();
  if (now.empty()) return file_.Forget();
  try {
    file_.Keep(DraftsText(now));
  } catch (const RuntimeFailure&) {
    return;  // of a character that no file of ours can hold
  }
}

}  // namespace orm
