#pragma once
#include <QStringList>

#include "report/rapport.h"

class TEleve;

/// What a document needs of a pupil, or of the school, and does not find.
struct TManque {
  /// Of that pupil; null: it is the school's.
  TManque(const TEleve* eleve, const QString& champ, const QString& texte, bool sansDocument = true);

  int EleveId = 0;  ///< 0: it is the school's
  QString Nom;      ///< of the pupil, and the class
  QString Classe;
  int AnneeScolaire = 0;     ///< a year in which the pupil is enrolled
  QString Champ;             ///< of the record, or of the school's screen, where it is mended; "" for none
  QString Texte;             ///< French
  bool SansDocument = true;  ///< the document goes without the pupil; else it leaves something out

  /// "ADAM Anne : le numéro national de l'enfant manque"
  QString Phrase() const;
};

/// What a document gives: what the user is told, and the previews in the order in which they open. A
/// document that the user gave up gives neither.
struct TResultat {
  QStringList Messages;
  std::vector<TRapport> Rapports;
  std::vector<TManque> Manques;  ///< told before the previews
  bool Echec = false;            ///< the document could not be made; a message says why

  /// Adds what the next document gave. A warning that stands on an earlier report is not repeated.
  void Ajouter(TResultat suite);
  /// What is missing stands after the messages.
  /// {"titre", "messages": [...], "rapports": [...]}, UTF-8.
  QByteArray EnJson(const QString& titre) const;
};

/// "Aucune information à imprimer", of a document that has no text of its own for an empty tree.
QString TexteRienAImprimer();

/// The tree goes into the report, which opens; an empty one leaves the message instead, if any.
TResultat Presenter(TRapport rapport, TArbreRapport arbre, const QString& siVide = {});

/// The same for a document that opens even when there is nothing on it.
TResultat PresenterMemeVide(TRapport rapport, TArbreRapport arbre);
