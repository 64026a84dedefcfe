#pragma once
#include <QString>
#include <exception>

/// Base of every failure that the program raises by itself. `Message` is what the user reads.
class Exception : public std::exception {
 public:
  explicit Exception(QString message) : Message(std::move(message)), utf8_(Message.toUtf8()) {}
  const char* what() const noexcept override { return utf8_.constData(); }

  QString Message;

 private:
  QByteArray utf8_;
};

/// A text that cannot be read as the number, date or time asked for.
class EConvertError : public Exception {
 public:
  using Exception::Exception;
};

/// A collection that could not be loaded or saved; carries the driver's message.
class EDistributor : public Exception {
 public:
  using Exception::Exception;
};
