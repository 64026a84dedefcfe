#include "report/json.h"

QByteArray TexteJson(const QString& texte) {
  QByteArray json = "\"";
  for (const char c : texte.toUtf8()) {
    switch (c) {
      case '"':
        json += "\\\"";
        break;
      case '\\':
        json += "\\\\";
        break;
      case '\n':
        json += "\\n";
        break;
      case '\r':
        json += "\\r";
        break;
      case '\t':
        json += "\\t";
        break;
      default:
        if (static_cast<unsigned char>(c) < 0x20)
          json += "\\u" + QByteArray::number(static_cast<int>(c), 16).rightJustified(4, '0');
        else
          json += c;
    }
  }
  return json + '"';
}
