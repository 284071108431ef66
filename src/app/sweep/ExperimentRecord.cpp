#include "app/sweep/ExperimentRecord.h"

#include <set>
#include <vector>

namespace keldor::sweep {

Json ExperimentRecord(const Experiment& experiment) {
  Json vary = Json::object();
  for (const VariedOption& option : experiment.Vary) {
    Json values = Json::array();
    for (const VariedValue& value : option.Values) values.push_back(value.Value);
    vary[option.Name] = values;
  }
  return Json{{"options", experiment.Options}, {"vary", vary}, {"repetitions", experiment.Repetitions},
              {"seed", experiment.Seed},       {"ticks", experiment.Ticks}, {"every", experiment.Every}};
}

std::string ExperimentRecordPath(const std::string& tablePath) { return tablePath + ".experiment"; }

namespace {

// Names the keys of two records that differ, down to the options within
// "options" and "vary".
void CollectChanges(const Json& was, const Json& now, const std::string& name, int depth, std::vector<std::string>& changed) {
  if (was == now) return;
  const size_t before = changed.size();
  if (depth < 2 && was.is_object() && now.is_object()) {
    std::set<std::string> keys;
    for (const Json* record : {&was, &now}) {
      for (const auto& item : record->items()) keys.insert(item.key());
    }
    for (const std::string& key : keys) {
      CollectChanges(was.value(key, Json()), now.value(key, Json()), name.empty() ? key : name + "." + key, depth + 1,
                     changed);
    }
  }
  // The same keys and values in another order still change the run numbering.
  if (changed.size() == before) changed.push_back(name.empty() ? "the key order" : name);
}

}  // namespace

std::optional<std::string> ChangedKeys(const Json& was, const Json& now) {
  std::vector<std::string> changed;
  CollectChanges(was, now, "", 0, changed);
  if (changed.empty()) return std::nullopt;
  std::string list;
  for (const std::string& key : changed) list += (list.empty() ? "" : ", ") + key;
  return list;
}

}  // namespace keldor::sweep
