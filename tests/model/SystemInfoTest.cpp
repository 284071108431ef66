#include "model/SystemInfo.h"

#include <gtest/gtest.h>

#include <map>
#include <utility>

#include "model/MessageBox.h"
#include "model/SplashCounter.h"

namespace keldor {
namespace {

// A registry that holds keys in memory and checks every opened key is closed.
class FakeRegistry : public Registry {
 public:
  struct Value {
    uint32_t type;
    std::string bytes;
  };
  void Put(const std::string& key, const std::string& name, Value value) { keys_[key][name] = std::move(value); }

  long OpenKey(RegistryKey root, const std::string& subKey, uint32_t access, RegistryKey& opened) override {
    if (root != HKeyLocalMachine || access != KeyAllAccess) return 87;
    auto it = keys_.find(subKey);
    if (it == keys_.end()) return 2;
    opened = ++lastHandle_;
    open_[opened] = subKey;
    return RegistrySuccess;
  }
  long QueryValue(RegistryKey key, const std::string& valueName, uint32_t& type, std::vector<char>& buffer,
                  uint32_t& length) override {
    bufferSizes.push_back(buffer.size());
    const auto& values = keys_.at(open_.at(key));
    auto it = values.find(valueName);
    if (it == values.end()) return 2;
    type = it->second.type;
    length = static_cast<uint32_t>(it->second.bytes.size());
    std::copy(it->second.bytes.begin(), it->second.bytes.end(), buffer.begin());
    return RegistrySuccess;
  }
  long CloseKey(RegistryKey key) override {
    open_.erase(key);
    return RegistrySuccess;
  }
  size_t OpenKeys() const { return open_.size(); }
  std::vector<size_t> bufferSizes;

 private:
  std::map<std::string, std::map<std::string, Value>> keys_;
  std::map<RegistryKey, std::string> open_;
  RegistryKey lastHandle_ = 100;
};

class FakeStarter : public ProgramStarter {
 public:
  bool FileExists(const std::string& path) override { return path == existing; }
  bool Start(const std::string& path) override {
    started.push_back(path);
    return startWorks;
  }
  std::string existing;
  bool startWorks = true;
  std::vector<std::string> started;
};

class RecordingMessages : public MessageBox {
 public:
  void Show(const std::string& text) override { shown.push_back(text); }
  std::vector<std::string> shown;
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
  for (size_t size : reg.bufferSizes) EXPECT_EQ(size, 1024u);
}

TEST(SystemInfoTest, StartsTheToolFromTheFirstKey) {
  FakeRegistry reg;
  reg.Put(PathKey, "PATH", {RegString, "C:\\msinfo.exe"});
  FakeStarter starter;
  RecordingMessages messages;
  StartSysInfo(reg, starter, messages);
  EXPECT_EQ(starter.started, std::vector<std::string>{"C:\\msinfo.exe"});
  EXPECT_TRUE(messages.shown.empty());
}

TEST(SystemInfoTest, FallsBackToTheToolFolderWhenTheFileExists) {
  FakeRegistry reg;
  reg.Put(FolderKey, "MSINFO", {RegString, std::string("C:\\Tools\0", 9)});
  FakeStarter starter;
  RecordingMessages messages;
  StartSysInfo(reg, starter, messages);
  EXPECT_TRUE(starter.started.empty());
  EXPECT_EQ(messages.shown, std::vector<std::string>{"System Information Is Unavailable At This Time"});

  starter.existing = "C:\\Tools\\MSINFO32.EXE";
  messages.shown.clear();
  StartSysInfo(reg, starter, messages);
  EXPECT_EQ(starter.started, std::vector<std::string>{"C:\\Tools\\MSINFO32.EXE"});
  EXPECT_TRUE(messages.shown.empty());
}

TEST(SystemInfoTest, NoKeyOrAFailedStartShowsTheMessage) {
  FakeRegistry empty;
  FakeStarter starter;
  RecordingMessages messages;
  StartSysInfo(empty, starter, messages);
  EXPECT_EQ(messages.shown.size(), 1u);

  FakeRegistry reg;
  reg.Put(PathKey, "PATH", {RegString, "C:\\gone.exe"});
  starter.startWorks = false;
  StartSysInfo(reg, starter, messages);
  EXPECT_EQ(messages.shown.size(), 2u);
}

TEST(SplashCounterTest, HandsOverOnThe51stTick) {
  SplashCounter counter;
  for (int i = 1; i <= 50; ++i) EXPECT_FALSE(counter.Tick()) << i;
  EXPECT_TRUE(counter.Tick());
}

}  // namespace
}  // namespace keldor
