#pragma once
#include <span>
#include <unordered_set>

#include "payments/releve_bancaire.h"
#include "workflows/credit_extraits.h"

/// What a movement is on the screen.
enum class TEtatMouvement {
  Nouveau,
  Inconnu,
  Comptabilise,
  AnneePrecedente,
  Cache,
  Illisible,
  DejaImporte,  ///< perhaps: a stored one differs by its name or text only
  Partiel       ///< shared out, with a part that nobody has
};

/// "Nouveau", "Inconnu" and so on.
QString Texte(TEtatMouvement etat);
/// Of a stored movement: hidden goes before accounted.
TEtatMouvement EtatExtrait(const TExtrait& extrait);
/// What is said of a movement that several have, or of which a part is left: "ADAM Anne 12,00 €, BABEL Zoé
/// 8,00 €, reste 4,00 €"; "" for one that was given whole.
QString TexteParts(const TExtrait& extrait);

/// "3 mouvements sont peut-être déjà importés"
QString TexteDejaImportes(int nombre);

/// A row of the preview.
struct TRangeeVirement {
  TMouvement Lu;
  TExtrait* Extrait = nullptr;  ///< the stored movement; null before it is stored, and when it is last year's
  TEtatMouvement Etat = TEtatMouvement::Illisible;
  int EleveId = 0;     ///< the pupil shown, 0 for none
  bool Coche = false;  ///< one that is perhaps imported already is to be stored all the same
};

/// Bringing a bank's file in: step 1 reads and shows, step 2 stores the new movements and credits those
/// whose communication tells the pupil.
class TImportVirements {
 public:
  /// Needs a year on display (`Globals`).
  explicit TImportVirements(TControleur& controleur) : controleur_(controleur) {}

  /// Forgets the file.
  void Vider();
  /// Step 1: reads, normalises, recognises. A file that tells its own form (CODA, camt.053) is read by it,
  /// any other by the layout of parameter 58. False, after a message, for a file that cannot be opened or
  /// read to its end, whose rows before the fault are kept, and for one whose balances and sums do not fit;
  /// and when the user does not want a statement that was taken before, follows no other or is another
  /// account's. Raises Exception for one that is no bank's file at all.
  bool Etape1(const QString& chemin);
  /// Step 2. Raises Exception when a movement cannot be stored, EConvertError when a communication cannot be
  /// read; what was stored and credited until then stays.
  void Etape2();

  /// Rows that step 2 will store.
  int NombreAMemoriser() const;
  /// Rows that are perhaps imported already, and not to be stored.
  int NombreDejaImportes() const;
  /// Ticks such a row, so that step 2 stores it, or takes the tick away.
  void Cocher(int rangee, bool coche);
  /// Leaves out the rows of a stored movement that leaves the year, or has left it: only its place counts.
  void Oublier(const TExtrait* extrait);

  const std::vector<TRangeeVirement>& Rangees() const { return rangees_; }
  /// The row that ended the reading.
  const std::optional<TFauteReleve>& Faute() const { return faute_; }
  /// What is said of the file, and of step 2 once it is done.
  const QString& Statut() const { return statut_; }

 private:
  /// What step 2 counts: rows, and not what they credit.
  struct TBilan {
    int Comptabilises = 0, Inconnus = 0, Regularisations = 0;
  };

  std::optional<QByteArray> Ouvrir(const QString& chemin) const;
  /// The movements into rows; false after a message.
  bool Lire(const QByteArray& octets);
  /// The same of a file that tells its own form.
  bool LireBancaire(TReleveBancaire releve);
  void Reconnaitre(TRangeeVirement& rangee);
  void ReconnaitreProches();
  void Situer(TRangeeVirement& rangee);
  void Resituer();
  std::vector<std::size_t> DerniersJumeaux() const;
  void Memoriser(TProgression& progression);
  void MemoriserEnsemble(std::span<TRangeeVirement> rangees);
  void Crediter(TProgression& progression);
  /// The stored movement that the row credits; null for none.
  const TExtrait* ACrediter(const TRangeeVirement& rangee) const;
  void CrediterRangee(const TRangeeVirement& rangee, bool compacte, TBilan& bilan);

  TControleur& controleur_;
  std::vector<TRangeeVirement> rangees_;
  std::optional<TFauteReleve> faute_;
  QString statut_;
  QString empreinte_;                   // of the file's octets; "" when none has been read
  bool reprise_ = false;                // step 2 of this file was cut off before
  std::unordered_set<int> passes_;      // the movements that step 2 has been through
  std::vector<TEnteteReleve> entetes_;  // of the statements in the file
  bool parSonCompte_ = false;           // the file tells whose account it is, and so the debits of the school
};

/// What is said of a file that cannot be opened; `cause` is what the system answers.
QString MessageOuverture(const QString& cause);
