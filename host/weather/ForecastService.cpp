#include "host/weather/ForecastService.h"

#include "host/files/Descriptor.h"
#include "host/weather/ForecastFetcher.h"

#include <QDesktopServices>
#include <QThread>
#include <QUrl>

#include <csignal>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

#include <sys/eventfd.h>

namespace vitrelle::host {

namespace {

using Ticket = ForecastFetcher::Ticket;
using Completion = std::function<void(const Result<Weather>&)>;

/// Answers on their way from the fetcher's thread to the main thread.
class Mailbox final {
 public:
  struct Letter {
    std::vector<Ticket> tickets;
    Result<Weather> weather;
  };

  /// To be read when there is something in it.
  int descriptor() const { return bell_.get(); }

  void put(Letter letter) {
    const std::lock_guard<std::mutex> lock(mutex_);
    letters_.push_back(std::move(letter));
    eventfd_write(bell_.get(), 1);
  }
  std::vector<Letter> takeAll() {
    const std::lock_guard<std::mutex> lock(mutex_);
    eventfd_t rings = 0;
    eventfd_read(bell_.get(), &rings);
    return std::exchange(letters_, {});
  }

 private:
  Descriptor bell_{eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)};
  std::mutex mutex_;
  std::vector<Letter> letters_;
};

/// Signals that end a program are the main thread's, whose loop may wait for them.
void startWithoutSignals(QThread& thread) {
  sigset_t all;
  sigset_t before;
  sigfillset(&all);
  pthread_sigmask(SIG_SETMASK, &all, &before);
  thread.start(); // which inherits the mask
  pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

class ForecastService final {
 public:
  ForecastService(WeatherSources sources, EventLoop loop)
      : sources_(std::move(sources)), loop_(std::move(loop)) {}
  ~ForecastService() {
    thread_.quit();
    thread_.wait();
  }
  ForecastService(const ForecastService&) = delete;
  ForecastService& operator=(const ForecastService&) = delete;

  Subscription weather(const Coordinate& place, Completion completion) {
    if (fetcher_ == nullptr) start();
    const Ticket ticket = next_++;
    waiting_->emplace(ticket, std::move(completion));
    QMetaObject::invokeMethod(fetcher_, [fetcher = fetcher_, ticket, place, now = sources_.now()] {
      fetcher->ask(ticket, place, now);
    });
    return Subscription([weak = std::weak_ptr(waiting_), ticket] {
      if (const auto waiting = weak.lock()) waiting->erase(ticket);
    });
  }

  void openAttribution() const { sources_.openUrl(forecastTermsUrl); }

 private:
  using Waiting = std::map<Ticket, Completion>;

  void start() {
    fetcher_ = new ForecastFetcher(
        {.url = sources_.url,
         .userAgent = "Vitrelle/" VITRELLE_VERSION " (com.quillmeresoftware.vitrelle)",
         .patience = sources_.patience,
         .restAfterFailure = sources_.restAfterFailure},
        sources_.home,
        [mailbox = mailbox_](const std::vector<Ticket>& tickets, const Result<Weather>& weather) {
          mailbox->put({tickets, weather});
        });
    fetcher_->moveToThread(&thread_);
    QObject::connect(&thread_, &QThread::finished, fetcher_, &QObject::deleteLater);
    startWithoutSignals(thread_);
    delivery_ = loop_.whenReadable(mailbox_->descriptor(),
                                   [mailbox = mailbox_, waiting = std::weak_ptr(waiting_)] {
                                     if (const auto held = waiting.lock()) deliver(*mailbox, *held);
                                   });
  }

  /// A completion may cancel another, ask again, or end this service.
  static void deliver(Mailbox& mailbox, Waiting& waiting) {
    for (const Mailbox::Letter& letter : mailbox.takeAll()) {
      for (const Ticket ticket : letter.tickets) {
        const auto found = waiting.extract(ticket);
        if (found) found.mapped()(letter.weather);
      }
    }
  }

  WeatherSources sources_;
  EventLoop loop_;
  std::shared_ptr<Mailbox> mailbox_ = std::make_shared<Mailbox>();
  std::shared_ptr<Waiting> waiting_ = std::make_shared<Waiting>();
  QThread thread_;
  ForecastFetcher* fetcher_ = nullptr; ///< in that thread, which owns it
  Subscription delivery_;
  Ticket next_ = 0;
};

} // namespace

WeatherService makeWeatherService(WeatherSources sources, const EventLoop& loop) {
  const auto service = std::make_shared<ForecastService>(std::move(sources), loop);
  return {.weather =
              [service](const Coordinate& place, Completion completion) {
                return service->weather(place, std::move(completion));
              },
          .openAttribution = [service] { service->openAttribution(); }};
}

void useWeatherService(Platform& platform, const HostOptions& options, const EventLoop& loop) {
  platform.weatherService =
      makeWeatherService({.url = options.weatherUrl.value_or(forecastUrl),
                          .home = options.home,
                          .now = platform.dateTime.now,
                          .openUrl =
                              [](const std::string& url) {
                                QDesktopServices::openUrl(QUrl(QString::fromStdString(url)));
                              }},
                         loop);
}

} // namespace vitrelle::host
