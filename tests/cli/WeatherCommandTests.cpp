// The weather from a server of this machine, by way of the store.
#include "tests/cli/Program.h"
#include "tests/host/weather/ServedForecast.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <csignal>
#include <cstdio>
#include <fstream>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

namespace vitrelle {
namespace {

using Json = nlohmann::json;
using test::Outcome;

/// Hands out the files of a folder.
class FileServer final {
 public:
  explicit FileServer(const std::string& folder) {
    int ends[2];
    EXPECT_EQ(pipe(ends), 0);
    process_ = fork();
    if (process_ == 0) {
      dup2(ends[1], STDOUT_FILENO);
      if (freopen("/dev/null", "w", stderr) == nullptr) _exit(1);
      execlp("python3", "python3", "-u", "-m", "http.server", "0", "--bind", "127.0.0.1",
             "--directory", folder.c_str(), nullptr);
      _exit(1);
    }
    close(ends[1]);
    FILE* said = fdopen(ends[0], "r");
    EXPECT_EQ(std::fscanf(said, "Serving HTTP on 127.0.0.1 port %d", &port_), 1);
    std::fclose(said);
  }
  ~FileServer() {
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
  }
  FileServer(const FileServer&) = delete;
  FileServer& operator=(const FileServer&) = delete;

  std::string url(const char* file) const {
    return "http://127.0.0.1:" + std::to_string(port_) + "/" + file;
  }

 private:
  pid_t process_ = 0;
  int port_ = 0;
};

class WeatherCommandTest : public test::ProgramTest {
 protected:
  void serve(const std::string& body) const {
    std::ofstream(folder / "complete", std::ios::binary) << body;
  }
};

TEST_F(WeatherCommandTest, fetch_storesTheWeatherAndRestsThen) {
  EXPECT_EQ(run({"weather"}).output, "") << "nothing is stored yet";
  serve(test::servedForecast().dump());
  const FileServer server(folder.string());
  const std::vector<std::string> fetch{"weather",
                                       "fetch",
                                       "--json",
                                       "--location",
                                       "35.02,135.75",
                                       "--now",
                                       "2026-11-21T13:10:00Z",
                                       "--weather-url",
                                       server.url("complete")};
  const Outcome fetched = run(fetch);
  EXPECT_EQ(fetched.status, 0) << fetched.complaints;
  const Json stored = Json::parse(fetched.output);
  EXPECT_EQ(stored.at("lastLat"), 35.02);
  EXPECT_EQ(stored.at("weatherTemp"), "-3º");
  EXPECT_EQ(stored.at("weatherDesc"), "heavyRain");
  EXPECT_EQ(stored.at("weatherHumidity"), 0.875);
  EXPECT_TRUE(stored.at("hourlyRain").is_null());
  EXPECT_EQ(Json::parse(run({"weather", "--json"}).output), stored);

  const Outcome again = run(fetch);
  EXPECT_EQ(again.status, 0);
  EXPECT_EQ(again.output, fetched.output);
  EXPECT_NE(again.complaints.find("for another 180 minutes"), std::string::npos)
      << again.complaints;
  auto rain = fetch;
  rain.emplace_back("--rain");
  EXPECT_EQ(Json::parse(run(rain).output).at("hourlyRain").size(), 4U);
}

TEST_F(WeatherCommandTest, serviceThatFailed_isNotAskedByTheNextCommand) {
  serve("no forecast");
  const FileServer server(folder.string());
  const std::vector<std::string> fetch{"weather",       "fetch",
                                       "--location",    "35.02,135.75",
                                       "--now",         "2026-11-21T13:10:00Z",
                                       "--weather-url", server.url("complete")};
  EXPECT_EQ(run(fetch).status, 1);
  serve(test::servedForecast().dump());
  const Outcome again = run(fetch);
  EXPECT_EQ(again.status, 1);
  EXPECT_NE(again.complaints.find("it failed a short while ago"), std::string::npos)
      << again.complaints;
}

TEST_F(WeatherCommandTest, failure_isToldAndStoresNothing) {
  serve("no forecast");
  const FileServer server(folder.string());
  for (const char* const file : {"complete", "nothing"}) {
    const Outcome outcome =
        run({"weather", "fetch", "--location", "35,135", "--weather-url", server.url(file)});
    EXPECT_EQ(outcome.status, 1) << file;
    EXPECT_EQ(outcome.output, "");
    EXPECT_TRUE(outcome.complaints.starts_with("vitrelle: ")) << outcome.complaints;
  }
  EXPECT_TRUE(Json::parse(run({"weather", "--json"}).output).at("weatherTemp").is_null());
}

} // namespace
} // namespace vitrelle
