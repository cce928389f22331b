// The weather service over a web server of this machine: no test asks the real one.
#include "host/weather/ForecastService.h"

#include "host/desktop/PollLoop.h"
#include "host/desktop/QtLoop.h"
#include "tests/host/weather/FakeWeatherServer.h"
#include "tests/host/weather/ServedForecast.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <libdeflate.h>

#include <cmath>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <unistd.h>

namespace vitrelle::host {
namespace {

namespace fs = std::filesystem;
using test::Answer;
using test::httpAnswer;

constexpr Coordinate oslo{59.9139, 10.7522};
/// By the server's clock the reply is good for an hour.
const QByteArray ages = "Date: Sat, 21 Nov 2026 13:00:10 GMT\r\n"
                        "Expires: Sat, 21 Nov 2026 14:00:10 GMT\r\n"
                        "Last-Modified: Sat, 21 Nov 2026 12:41:33 GMT\r\n";

QByteArray body() {
  return QByteArray::fromStdString(test::servedForecast().dump());
}

Answer sound() {
  return {httpAnswer("200 OK", ages, body())};
}

Answer failed() {
  return {httpAnswer("500 Internal Server Error", {}, {})};
}

Answer redirection(const std::string& to) {
  return {httpAnswer("302 Found", "Location: " + QByteArray::fromStdString(to) + "\r\n", "")};
}

QByteArray packed(const QByteArray& plain) {
  libdeflate_compressor* compressor = libdeflate_alloc_compressor(6);
  const auto size = static_cast<std::size_t>(plain.size());
  QByteArray out(static_cast<qsizetype>(libdeflate_gzip_compress_bound(compressor, size)), '\0');
  out.resize(static_cast<qsizetype>(libdeflate_gzip_compress(
      compressor, plain.data(), size, out.data(), static_cast<std::size_t>(out.size()))));
  libdeflate_free_compressor(compressor);
  return out;
}

class ForecastServiceTest : public testing::Test {
 protected:
  ForecastServiceTest() { restart(); }

  WeatherSources sources() {
    return {.url = server.url(),
            .home = HomeFolder(folder.filePath(QStringLiteral("home")).toStdString()),
            .now = [this] { return Date{now}; },
            .patience = patience,
            .restAfterFailure = rest,
            .openUrl = [this](const std::string& url) { opened = url; }};
  }
  void restart() { service = makeWeatherService(sources(), makeQtLoop()); }

  /// What a question came to.
  Result<Weather> ask(const Coordinate& place = oslo) {
    std::optional<Result<Weather>> told;
    const Subscription subscription =
        service.weather(place, [&](const Result<Weather>& weather) { told = weather; });
    EXPECT_FALSE(told) << "before it returned";
    EXPECT_TRUE(QTest::qWaitFor([&] { return told.has_value(); }, 20'000));
    return told.value_or(Failure{"the test", "there was no answer"});
  }
  fs::path cache() const { return fs::path(folder.path().toStdString()) / "home" / "cache"; }
  std::ptrdiff_t keptFiles() const {
    return std::distance(fs::directory_iterator(cache()), fs::directory_iterator());
  }

  QTemporaryDir folder;
  test::FakeWeatherServer server;
  double now = test::firstHour.secondsSinceReferenceDate + 10;
  std::chrono::milliseconds patience = std::chrono::seconds(10); // a busy machine is slow
  std::chrono::milliseconds rest{0};
  std::string opened;
  WeatherService service;
};

TEST_F(ForecastServiceTest, request_tellsWhoAsksAndOfWhatPlace) {
  server.answer = [](const QByteArray&) { return sound(); };
  struct Case {
    Coordinate place;
    const char* query;
  };
  for (const auto& [place, query] :
       {Case{{59.91386, 10.75224999}, "lat=59.9139&lon=10.7522"},
        Case{{-33.5, 151}, "lat=-33.5&lon=151"}, Case{{0, 0}, "lat=0&lon=0"},
        Case{{-0.00004, 0.00006}, "lat=0&lon=0.0001"}, Case{{90, -180}, "lat=90&lon=-180"}}) {
    EXPECT_TRUE(ask(place)) << query;
    const QByteArray& request = server.requests.back();
    EXPECT_TRUE(request.startsWith(QByteArray("GET /complete?") + query + " HTTP/1.1\r\n"))
        << query << '\n'
        << request.toStdString();
    EXPECT_TRUE(request.contains("\r\nUser-Agent: Vitrelle/2.0.0 (com.quillmeresoftware.vitrelle)"))
        << request.toStdString();
    EXPECT_TRUE(request.contains("gzip")) << request.toStdString();
    EXPECT_FALSE(request.contains("If-Modified-Since")) << request.toStdString();
  }
  const std::size_t asked = server.requests.size();
  for (const Coordinate& place : {Coordinate{90.1, 0}, Coordinate{0, -180.1},
                                  Coordinate{std::nan(""), 0}, Coordinate{0, INFINITY}}) {
    EXPECT_FALSE(ask(place)) << place.latitude << ' ' << place.longitude;
  }
  EXPECT_EQ(server.requests.size(), asked);
}

TEST_F(ForecastServiceTest, addressWithAQuery_keepsIt) {
  server.answer = [](const QByteArray&) { return sound(); };
  WeatherSources other = sources();
  other.url = server.url("/w?key=a%20b&x=1#top");
  service = makeWeatherService(other, makeQtLoop());
  EXPECT_TRUE(ask());
  EXPECT_TRUE(server.requests.back().startsWith("GET /w?key=a%20b&x=1&lat=59.9139&lon=10.7522 "))
      << server.requests.back().toStdString();
}

TEST_F(ForecastServiceTest, answersOfManyKinds_areUnderstood) {
  const QByteArray plain = "HTTP/1.1 200 OK\r\n";
  const QByteArray chunk =
      QByteArray::number(body().size(), 16) + "\r\n" + body() + "\r\n0\r\n\r\n";
  const std::pair<const char*, QByteArray> cases[] = {
      {"as it should be", sound().bytes},
      {"of an old edition", httpAnswer("203 Non-Authoritative Information", {}, body())},
      {"packed", httpAnswer("200 OK", "Content-Encoding: gzip\r\n", packed(body()))},
      {"in chunks", plain + "Transfer-Encoding: chunked\r\n\r\n" + chunk},
      {"without a length", plain + "Connection: close\r\n\r\n" + body()},
      {"with a cookie and odd dates",
       httpAnswer("200 OK", "Set-Cookie: a=b\r\nExpires: 0\r\nLast-Modified: now\r\n", body())}};
  for (const auto& [name, bytes] : cases) {
    server.answer = [bytes = bytes](const QByteArray&) { return Answer{bytes}; };
    const Result<Weather> weather = ask();
    ASSERT_TRUE(weather) << name << ": " << weather.failure().why;
    EXPECT_EQ(weather->currentWeather.condition, "heavyRain") << name;
    EXPECT_EQ(weather->hourlyForecast.size(), 4U) << name;
    EXPECT_FALSE(server.requests.back().contains("Cookie")) << name;
    fs::remove_all(cache());
    restart();
  }
}

TEST_F(ForecastServiceTest, wrongAnswers_areFailures) {
  const QByteArray plain = "HTTP/1.1 200 OK\r\n";
  const QByteArray bomb = packed(QByteArray(50'000'000, ' '));
  const std::pair<const char*, Answer> cases[] = {
      {"403", {httpAnswer("403 Forbidden", {}, "no")}},
      {"404", {httpAnswer("404 Not Found", {}, body())}},
      {"429", {httpAnswer("429 Too Many Requests", {}, body())}},
      {"500", {httpAnswer("500 Internal Server Error", {}, body())}},
      {"401", {httpAnswer("401 Unauthorized", "WWW-Authenticate: Basic\r\n", body())}},
      {"407", {httpAnswer("407 Proxy", "Proxy-Authenticate: Basic\r\n", body())}},
      {"204", {httpAnswer("204 No Content", {}, {})}},
      {"206", {httpAnswer("206 Partial Content", {}, body())}},
      {"304 that nobody asked for", {"HTTP/1.1 304 Not Modified\r\n\r\n"}},
      {"a way to nowhere", {httpAnswer("302 Found", {}, body())}},
      {"another document", {httpAnswer("200 OK", {}, "<html>")}},
      {"nothing", {httpAnswer("200 OK", {}, {})}},
      {"half of it", {httpAnswer("200 OK", {}, body().left(200))}},
      {"less than told", {plain + "Content-Length: 5000000\r\n\r\n" + body()}},
      {"more than told", {plain + "Content-Length: 100\r\n\r\n" + body()}},
      {"a negative length", {plain + "Content-Length: -5\r\n\r\n" + body().left(99)}},
      {"an end at once", {{}}},
      {"an end in the head", {"HTTP/1.1 200 OK\r\nContent-"}},
      {"no HTTP", {QByteArray("\0\xFF\x7F hello\r\n\r\n", 13)}},
      {"a wrong chunk", {plain + "Transfer-Encoding: chunked\r\n\r\nzz\r\n" + body()}},
      {"a packed half",
       {httpAnswer("200 OK", "Content-Encoding: gzip\r\n", packed(body()).left(90))}},
      {"packed noise", {httpAnswer("200 OK", "Content-Encoding: gzip\r\n", "noise")}},
      {"much in little", {httpAnswer("200 OK", "Content-Encoding: gzip\r\n", bomb)}}};
  for (const auto& [name, answer] : cases) {
    server.answer = [answer = answer](const QByteArray&) { return answer; };
    const std::size_t asked = server.requests.size();
    EXPECT_FALSE(ask()) << name;
    EXPECT_LE(server.requests.size(), asked + 4) << name; // Qt makes lost connections anew
    EXPECT_FALSE(fs::exists(cache())) << name;
    restart();
  }
}

TEST_F(ForecastServiceTest, tooMuch_isBrokenOff) {
  const QByteArray block(500'000, ' ');
  for (const QByteArray head : {"Content-Length: 50000000\r\n\r\n", "\r\n"}) {
    server.dripped = 0;
    server.answer = [&](const QByteArray&) {
      return Answer{.bytes = "HTTP/1.1 200 OK\r\n" + head, .drip = block, .mostBytes = 50'000'000};
    };
    const Result<Weather> weather = ask();
    ASSERT_FALSE(weather);
    EXPECT_EQ(weather.failure().why, "it sends too much");
    EXPECT_LT(server.dripped, 25'000'000);
    restart();
  }
}

TEST_F(ForecastServiceTest, slowServers_areGivenUp) {
  patience = std::chrono::milliseconds(400);
  restart();
  const QByteArray head = "HTTP/1.1 200 OK\r\nContent-Length: 100000\r\n\r\n";
  const std::pair<const char*, Answer> cases[] = {
      {"silent", {.bytes = {}, .closes = false}},
      {"silent behind its head", {.bytes = head, .closes = false}},
      {"one that drips", {.bytes = head, .drip = " ", .dripMilliseconds = 20}},
      {"one that drips its head",
       {.bytes = "HTTP/1.1 200 OK\r\nA: ", .drip = "a", .dripMilliseconds = 20}}};
  for (const auto& [name, answer] : cases) {
    server.answer = [answer = answer](const QByteArray&) { return answer; };
    QElapsedTimer timer;
    timer.start();
    const Result<Weather> weather = ask();
    ASSERT_FALSE(weather) << name;
    EXPECT_EQ(weather.failure().why, "it takes too long") << name;
    EXPECT_LT(timer.elapsed(), 5000) << name;
    restart();
  }
}

TEST_F(ForecastServiceTest, redirections_areFollowedWithinTheServer) {
  int hops = 3;
  server.answer = [&](const QByteArray&) {
    return hops-- > 0 ? redirection("/other" + std::to_string(hops)) : sound();
  };
  EXPECT_TRUE(ask());
  EXPECT_EQ(server.requests.size(), 4U);
  for (const std::string& to :
       {server.url(), "https" + server.url().substr(4), std::string("ftp://127.0.0.1/"),
        "http://localhost" + server.url().substr(16), std::string("file:///etc/hostname"),
        std::string("data:application/json,{}")}) {
    fs::remove_all(cache());
    restart();
    server.requests.clear();
    server.answer = [to](const QByteArray&) { return redirection(to); };
    EXPECT_FALSE(ask()) << to;
    EXPECT_LE(server.requests.size(), 4U) << to;
  }
}

TEST_F(ForecastServiceTest, keptReply_answersWhileTheServiceHasNothingNewer) {
  server.answer = [](const QByteArray&) { return sound(); };
  const Result<Weather> first = ask();
  ASSERT_TRUE(first);
  EXPECT_EQ(*ask(), *first);
  now += 3599;
  restart(); // what was kept outlives a program
  const Result<Weather> later = ask();
  ASSERT_TRUE(later);
  EXPECT_EQ(later->hourlyForecast.size(), 3U) << "of the present, not of when it was asked";
  EXPECT_EQ(server.requests.size(), 1U);

  now += 1;
  server.answer = [](const QByteArray&) {
    return Answer{"HTTP/1.1 304 Not Modified\r\n" + ages + "\r\n"};
  };
  const Result<Weather> unmodified = ask();
  ASSERT_TRUE(unmodified) << unmodified.failure().why;
  EXPECT_EQ(unmodified->currentWeather.condition, "isolatedThunderstorms");
  EXPECT_EQ(server.requests.size(), 2U);
  EXPECT_TRUE(
      server.requests.back().contains("\r\nIf-Modified-Since: Sat, 21 Nov 2026 12:41:33 GMT\r\n"))
      << server.requests.back().toStdString();
  now += 3000;
  EXPECT_TRUE(ask()) << "what has not changed is new again";
  EXPECT_EQ(server.requests.size(), 2U);
  now -= 7200;
  EXPECT_TRUE(ask()) << "the clock was put back";
  EXPECT_EQ(server.requests.size(), 3U);
  server.answer = [](const QByteArray&) { return sound(); };
  EXPECT_TRUE(ask({60, 10}));
  EXPECT_EQ(server.requests.size(), 4U) << "another place";
}

TEST_F(ForecastServiceTest, keptReply_isNeverNewForLong) {
  const QByteArray endless = "Date: Sat, 21 Nov 2026 13:00:10 GMT\r\n"
                             "Expires: Sat, 21 Nov 9999 14:00:10 GMT\r\n";
  nlohmann::json twoDays = test::servedForecast();
  twoDays["properties"]["timeseries"].push_back(test::step("2026-11-22T13:00:00Z", "snow"));
  const QByteArray reply = QByteArray::fromStdString(twoDays.dump());
  server.answer = [&](const QByteArray&) { return Answer{httpAnswer("200 OK", endless, reply)}; };
  EXPECT_TRUE(ask());
  now += 24 * 3600;
  EXPECT_TRUE(ask());
  EXPECT_EQ(server.requests.size(), 2U);
}

TEST_F(ForecastServiceTest, damagedReplies_areNotUsed) {
  server.answer = [](const QByteArray&) { return sound(); };
  EXPECT_TRUE(ask());
  const fs::path file = fs::directory_iterator(cache())->path();
  std::ifstream input(file, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(input), {}};
  const std::size_t line = text.find("http:");
  const std::pair<const char*, std::string> cases[] = {
      {"empty", ""},
      {"cut off", text.substr(0, text.size() - 1)},
      {"longer", text + "}"},
      {"without a body", text.substr(0, text.find('{'))},
      {"noise", std::string(5000, '\xA5')},
      {"of another address", text.substr(0, line) + "https" + text.substr(line + 4)},
      {"of another kind", "x" + text},
      {"wrong inside", text.substr(0, text.size() - 10) + "0123456789"}};
  for (const auto& [name, damaged] : cases) {
    std::ofstream(file, std::ios::binary) << damaged;
    restart();
    const std::size_t asked = server.requests.size();
    EXPECT_TRUE(ask()) << name;
    ASSERT_EQ(server.requests.size(), asked + 1) << name;
    EXPECT_FALSE(server.requests.back().contains("If-Modified-Since")) << name;
  }
  restart();
  const std::size_t asked = server.requests.size();
  EXPECT_TRUE(ask());
  EXPECT_EQ(server.requests.size(), asked) << "the last one is sound again";
}

TEST_F(ForecastServiceTest, homeThatCantBeWritten_isNoFailure) {
  fs::create_directories(cache().parent_path());
  std::ofstream(cache()) << "no folder";
  server.answer = [](const QByteArray&) { return sound(); };
  EXPECT_TRUE(ask());
  EXPECT_TRUE(ask());
  EXPECT_EQ(server.requests.size(), 1U) << "it is held in memory";
}

TEST_F(ForecastServiceTest, placesOfLongAgo_areForgotten) {
  server.answer = [](const QByteArray&) { return sound(); };
  for (int i = 0; i < 12; ++i) {
    EXPECT_TRUE(ask({10.0 + i, 20}));
    QTest::qWait(5); // their times differ
  }
  EXPECT_EQ(keptFiles(), 8);
  restart();
  EXPECT_TRUE(ask({21, 20}));
  EXPECT_EQ(server.requests.size(), 12U);
  EXPECT_TRUE(ask({10, 20}));
  EXPECT_EQ(server.requests.size(), 13U);
}

TEST_F(ForecastServiceTest, serviceThatFailed_isLeftInPeaceForAWhile) {
  server.answer = [](const QByteArray&) { return failed(); };
  rest = std::chrono::hours(1);
  restart();
  EXPECT_FALSE(ask());
  for (const Coordinate& place : {oslo, Coordinate{60, 10}})
    EXPECT_EQ(ask(place).failure().why, "it failed a short while ago");
  restart();
  EXPECT_EQ(ask().failure().why, "it failed a short while ago") << "by the next program too";
  EXPECT_EQ(server.requests.size(), 1U);
  WeatherSources other = sources();
  other.url = server.url("/other");
  service = makeWeatherService(other, makeQtLoop());
  EXPECT_FALSE(ask());
  EXPECT_EQ(server.requests.size(), 2U) << "another service has not failed";

  fs::remove_all(cache());
  rest = std::chrono::milliseconds(100);
  restart();
  EXPECT_FALSE(ask());
  QTest::qWait(200);
  server.answer = [](const QByteArray&) { return sound(); };
  EXPECT_TRUE(ask());
}

TEST_F(ForecastServiceTest, restOfAnotherProgram_isNotTakenForMoreThanItIs) {
  using std::chrono::hours;
  using std::chrono::milliseconds;
  const auto since = std::chrono::system_clock::now().time_since_epoch();
  const auto lines = [&](milliseconds begun, milliseconds end) {
    const auto moment = [&](milliseconds distance) {
      return std::to_string((std::chrono::duration_cast<milliseconds>(since) + distance).count());
    };
    return "vitrelle rest 1\n" + server.url() + "\n" + moment(begun) + " " + moment(end) + "\n";
  };
  const std::string sound = lines(hours(-1), hours(1));
  const std::tuple<const char*, std::string, bool> cases[] = {
      {"sound", sound, true},
      {"over", lines(hours(-2), hours(-1)), false},
      {"of a clock that was put back", lines(hours(1), hours(2)), false},
      {"endless", lines(hours(-25), hours(100'000)), false},
      {"long", lines(hours(-23), hours(100'000)), true},
      {"before all times",
       "vitrelle rest 1\n" + server.url() + "\n-9223372036854775808 9223372036854775807\n", false},
      {"empty", "", false},
      {"cut off", sound.substr(0, sound.size() - 20), false},
      {"of another kind", "x" + sound, false},
      {"no numbers", "vitrelle rest 1\n" + server.url() + "\n" + "soon later\n", false},
      {"noise", std::string(5000, '\xA5'), false}};
  server.answer = [](const QByteArray&) { return failed(); };
  fs::create_directories(cache());
  for (const auto& [name, text, rests] : cases) {
    std::ofstream(cache() / "rest", std::ios::binary) << text;
    restart();
    const std::size_t asked = server.requests.size();
    EXPECT_FALSE(ask()) << name;
    EXPECT_EQ(server.requests.size(), rests ? asked : asked + 1) << name;
  }
}

TEST_F(ForecastServiceTest, restThatCantBeKept_holdsForThisProgram) {
  fs::create_directories(cache().parent_path());
  std::ofstream(cache()) << "no folder";
  server.answer = [](const QByteArray&) { return failed(); };
  rest = std::chrono::hours(1);
  restart();
  EXPECT_FALSE(ask());
  EXPECT_FALSE(ask());
  EXPECT_EQ(server.requests.size(), 1U);
}

TEST_F(ForecastServiceTest, retryAfter_isHonoured) {
  const std::pair<const char*, bool> cases[] = {
      {"Retry-After: 120\r\n", true},
      {"Retry-After: 999999999999999999\r\n", true},
      {"Date: Sat, 21 Nov 2026 13:00:00 GMT\r\nRetry-After: Sat, 21 Nov 2026 13:02:00 GMT\r\n",
       true},
      {"", false},
      {"Retry-After: 0\r\n", false},
      {"Retry-After: -5\r\n", false},
      {"Retry-After: soon\r\n", false},
      {"Date: Sat, 21 Nov 2026 13:00:00 GMT\r\nRetry-After: Sat, 21 Nov 2026 12:00:00 GMT\r\n",
       false}};
  for (const auto& [headers, rests] : cases) {
    fs::remove_all(cache());
    server.requests.clear();
    server.answer = [headers = headers](const QByteArray&) {
      return Answer{httpAnswer("429 Too Many Requests", headers, {})};
    };
    for (int i = 0; i < 2; ++i) {
      restart();
      EXPECT_FALSE(ask()) << headers;
      EXPECT_FALSE(ask()) << headers;
    }
    EXPECT_EQ(server.requests.size(), rests ? 1U : 4U) << headers;
  }
}

TEST_F(ForecastServiceTest, networkThatWasAway_isTriedAgainAtOnce) {
  rest = std::chrono::hours(1);
  restart();
  server.answer = [](const QByteArray&) { return sound(); };
  server.stop();
  EXPECT_FALSE(ask());
  server.start();
  EXPECT_TRUE(ask());
}

TEST_F(ForecastServiceTest, questionsAboutOnePlace_areOneRequest) {
  server.answer = [](const QByteArray&) { return sound(); };
  std::vector<int> told;
  std::vector<Subscription> asked;
  for (int i = 0; i < 4; ++i) {
    asked.push_back(
        service.weather(i == 3 ? Coordinate{1, 1} : oslo, [&, i](const Result<Weather>& weather) {
          EXPECT_TRUE(weather) << i;
          told.push_back(i);
          asked[2].cancel(); // another one's, inside an answer
        }));
  }
  asked[1].cancel();
  EXPECT_TRUE(QTest::qWaitFor([&] { return told.size() == 2; }));
  QTest::qWait(50); // nothing more
  EXPECT_EQ(told, (std::vector<int>{0, 3}));
  EXPECT_EQ(server.requests.size(), 2U);
}

TEST_F(ForecastServiceTest, end_waitsForNobody) {
  server.answer = [](const QByteArray&) { return Answer{.bytes = {}, .closes = false}; };
  bool told = false;
  const Subscription subscription =
      service.weather(oslo, [&](const Result<Weather>&) { told = true; });
  EXPECT_TRUE(QTest::qWaitFor([&] { return server.requests.size() == 1; }));
  QElapsedTimer timer;
  timer.start();
  service = {};
  EXPECT_LT(timer.elapsed(), 2000);
  QTest::qWait(50);
  EXPECT_FALSE(told);
}

TEST_F(ForecastServiceTest, answer_mayEndTheService) {
  server.answer = [](const QByteArray&) { return sound(); };
  bool told = false;
  const Subscription subscription = service.weather(oslo, [&](const Result<Weather>&) {
    told = true;
    service = {};
  });
  EXPECT_TRUE(QTest::qWaitFor([&] { return told; }));
}

TEST_F(ForecastServiceTest, anyLoop_delivers) {
  PollLoop loop;
  service = makeWeatherService(sources(), loop.operations());
  std::string why;
  const Subscription subscription = service.weather({91, 0}, [&](const Result<Weather>& weather) {
    why = weather.failure().why;
    kill(getpid(), SIGINT); // which the loop takes for its end, and no other thread takes
  });
  loop.run();
  EXPECT_EQ(why, "there is no such place");
  service = {}; // before its loop
}

TEST_F(ForecastServiceTest, service_costsNothingBeforeItIsAsked) {
  const auto threads = [] {
    return std::distance(fs::directory_iterator("/proc/self/task"), fs::directory_iterator());
  };
  const auto before = threads();
  restart();
  EXPECT_EQ(threads(), before);
  service.openAttribution();
  EXPECT_EQ(opened, forecastTermsUrl);
  EXPECT_EQ(threads(), before);
}

} // namespace
} // namespace vitrelle::host

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  for (const char* proxy : {"http_proxy", "HTTP_PROXY", "all_proxy", "ALL_PROXY"})
    qunsetenv(proxy);
  const QCoreApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
