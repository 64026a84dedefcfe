#pragma once
#include <QFont>
#include <QHash>
#include <array>

/// How wide texts are. It keeps them: from one pupil to the next most texts of a list are the same, and
/// shaping them is what costs.
class MesureTextes {
 public:
  /// On one line, rounded up.
  int Largeur(const QString& texte, const QFont& police) const;

 private:
  struct TGarde {
    QFont Police;
    QHash<QString, int> Largeurs;
  };
  mutable std::array<TGarde, 2> gardes_;  ///< of the plain font, and of the bold one
};
