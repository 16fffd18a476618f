#pragma once
// The suite's message service: numbered messages with "%1!s!" arguments,
// prompts as message boxes, warnings, a local debug log and the run modes
// (debug messages enabled, regression-test mode) that other services consult.
#include "gen_export.h"

#include <QMessageBox>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <mutex>
#include <vector>

// What a catalogue message is: its severity, or OK_ONLY for a failure the
// user can only acknowledge (its box offers OK and nothing else).
enum class GEN_MESSAGE_KIND { INFO, WARNING, ERROR, OK_ONLY };

// What a message box asks of the user; it picks the box's icon.
enum class GEN_PROMPT_TYPE { INFORMATION, WARNING, ERROR, QUESTION };

struct GEN_MESSAGE {
  int number = 0; // 0 for a plain warning that is not in the catalogue
  GEN_MESSAGE_KIND kind = GEN_MESSAGE_KIND::INFO;
  QString text;
};

// One entry of the message catalogue.
struct GEN_MESSAGE_DEF {
  int number;
  const char* identifier;
  GEN_MESSAGE_KIND kind;
  const char* text;
};

// Looks a message up by number; null when the catalogue has no such message.
GEN_EXPORT const GEN_MESSAGE_DEF* gen_find_message(int number);

// Expands "%N", "%N!s!", "%N!d!" (any printf-like tag between the bangs) with
// args[N-1] and "%%" to "%". A missing argument expands to nothing.
GEN_EXPORT QString gen_format_message_text(const QString& text, const QStringList& args);

class GEN_EXPORT GEN_MESSAGE_SERVICE {
public:
  using LISTENER = std::function<void(const GEN_MESSAGE&)>;

  GEN_MESSAGE_SERVICE();
  virtual ~GEN_MESSAGE_SERVICE();
  GEN_MESSAGE_SERVICE(const GEN_MESSAGE_SERVICE&) = delete;
  GEN_MESSAGE_SERVICE& operator=(const GEN_MESSAGE_SERVICE&) = delete;

  // Reads the run modes: "-regression" on the command line or
  // VANTOR_REGRESSION_TEST sets regression-test mode; VANTOR_DEBUG or the
  // configuration variable vantor_debug enables debug messages.
  virtual void init(int argc, const char* const* argv);
  virtual void shutdown();
  bool is_initialized() const;

  virtual QString format_message(int number, const QStringList& args = {}) const;
  // Posts a catalogue message: to standard error, the debug log and listeners.
  virtual void post_message(int number, const QStringList& args = {});
  // A problem worth telling the user that has no catalogue number.
  virtual void warning(const QString& text);
  // Shows the message in a modal box and returns the button pressed; in
  // regression-test mode, or without a GUI, returns default_button at once.
  virtual QMessageBox::StandardButton prompt(int number, const QStringList& args,
                                             QMessageBox::StandardButtons buttons,
                                             QMessageBox::StandardButton default_button,
                                             QWidget* parent = nullptr);

  virtual void debug_log(const QString& tag, const QString& text);
  virtual bool is_debug_enabled() const;
  virtual bool is_regression_test_mode() const;
  void set_debug_enabled(bool enabled);
  void set_regression_test_mode(bool on);
  // Where debug log lines go: VANTOR_DEBUG_LOG, else "<program>_debug.log" in
  // the working directory while debug messages are enabled, else nowhere.
  QString debug_log_path() const;

  int add_listener(LISTENER listener);
  void remove_listener(int id);

protected:
  void deliver(const GEN_MESSAGE& message);

private:
  mutable std::mutex m_mutex;
  std::vector<std::pair<int, LISTENER>> m_listeners;
  int m_next_listener = 1;
  bool m_initialized = false;
  bool m_debug_enabled = false;
  bool m_regression = false;
  QString m_program;
};

// The process's message service; null restores the default one.
GEN_EXPORT GEN_MESSAGE_SERVICE& gen_message_service();
GEN_EXPORT void gen_set_message_service(GEN_MESSAGE_SERVICE* service);
