#include "window/SystemInfo.h"

#include <gtest/gtest.h>

#include <map>
#include <tuple>
#include <utility>

#include "support/RecordingMessageBox.h"
#include "window/SplashCounter.h"

namespace keldor {
namespace {

// A registry that holds keys in memory and counts the keys left open.
class FakeRegistry : public Registry {
 public:
  struct Value {
    uint32_t type;
    std::string bytes;
  };
  void Put(const std::string& key, const std::string& name, Value value) { keys_[key][name] = std::move(value); }
  long OpenKey(RegistryKey root, const std::string& subKey, uint32_t access, RegistryKey& opened) override {
    if (root != HKeyLocalMachine || access != KeyAllAccess) return 87;
    if (!keys_.contains(subKey)) return 2;
    open_[opened = ++lastHandle_] = subKey;
    return RegistrySuccess;
  }
  long QueryValue(RegistryKey key, const std::string& valueName, uint32_t& type, std::vector<char>& buffer,
                  uint32_t& length) override {
    const auto& values = keys_.at(open_.at(key));
    const auto it = values.find(valueName);
    if (it == values.end()) return 2;
    if (buffer.size() < it->second.bytes.size()) return 234;  // more data than room
    type = it->second.type;
    length = static_cast<uint32_t>(it->second.bytes.size());
    std::copy(it->second.bytes.begin(), it->second.bytes.end(), buffer.begin());
    return RegistrySuccess;
  }
  long CloseKey(RegistryKey key) override { return open_.erase(key) == 1 ? RegistrySuccess : 6; }
  size_t OpenKeys() const { return open_.size(); }

 private:
  std::map<std::string, std::map<std::string, Value>> keys_;
  std::map<RegistryKey, std::string> open_;
  RegistryKey lastHandle_ = 100;
};

struct FakeStarter : ProgramStarter {
  bool FileExists(const std::string& path) override { return path == existing; }
  bool Start(const std::string& path) override {
    started.push_back(path);
    return startWorks;
  }
  std::string existing;
  bool startWorks = true;
  std::vector<std::string> started;
};

const std::string PathKey = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
const std::string FolderKey = "SOFTWARE\\Microsoft\\Shared Tools Location";

TEST(SystemInfoTest, GetKeyValueReadsStringsAndDwords) {
  FakeRegistry reg;
  reg.Put("K", "S", {RegString, std::string("C:\\tool.exe\0", 12)});
  reg.Put("K", "D", {RegDword, std::string("\x1f\x00\xab\x0c", 4)});
  reg.Put("K", "Z", {RegDword, std::string("\x01\x00\x00\x00", 4)});
  std::string value = "stale";
  EXPECT_TRUE(GetKeyValue(reg, HKeyLocalMachine, "K", "S", value));
  EXPECT_EQ(value, "C:\\tool.exe");
  EXPECT_TRUE(GetKeyValue(reg, HKeyLocalMachine, "K", "D", value));
  EXPECT_EQ(value, "&hCAB01F");
  // A most significant zero byte is a final NUL and goes.
  EXPECT_TRUE(GetKeyValue(reg, HKeyLocalMachine, "K", "Z", value));
  EXPECT_EQ(value, "&h001");
  EXPECT_FALSE(GetKeyValue(reg, HKeyLocalMachine, "K", "missing", value));
  EXPECT_EQ(value, "");
  EXPECT_FALSE(GetKeyValue(reg, HKeyLocalMachine, "nokey", "S", value));
  EXPECT_EQ(reg.OpenKeys(), 0u);
}

TEST(SystemInfoTest, StartsTheToolFromEitherKeyOrShowsTheMessage) {
  const std::string unavailable = "System Information Is Unavailable At This Time";
  struct Case {
    std::string key, name, value, existing;
    bool startWorks;
    std::vector<std::string> started, shown;
  };
  const Case cases[] = {
      {PathKey, "PATH", "C:\\msinfo.exe", "", true, {"C:\\msinfo.exe"}, {}},
      {PathKey, "PATH", "C:\\gone.exe", "", false, {"C:\\gone.exe"}, {unavailable}},
      {FolderKey, "MSINFO", std::string("C:\\Tools\0", 9), "C:\\Tools\\MSINFO32.EXE", true,
       {"C:\\Tools\\MSINFO32.EXE"}, {}},
      {FolderKey, "MSINFO", "C:\\Tools", "", true, {}, {unavailable}},  // the file is not there
      {"nothing", "", "", "", true, {}, {unavailable}}};
  for (const Case& c : cases) {
    FakeRegistry reg;
    reg.Put(c.key, c.name, {RegString, c.value});
    FakeStarter starter;
    std::tie(starter.existing, starter.startWorks) = std::tie(c.existing, c.startWorks);
    testing::RecordingMessageBox messages;
    StartSysInfo(reg, starter, messages);
    EXPECT_EQ(starter.started, c.started) << c.key << " " << c.value;
    EXPECT_EQ(messages.shown, c.shown) << c.key << " " << c.value;
    EXPECT_EQ(reg.OpenKeys(), 0u);
  }
}

TEST(SplashCounterTest, HandsOverOnThe51stTick) {
  SplashCounter counter;
  for (int i = 1; i <= 50; ++i) EXPECT_FALSE(counter.Tick()) << i;
  EXPECT_TRUE(counter.Tick());
}

}  // namespace
}  // namespace keldor
