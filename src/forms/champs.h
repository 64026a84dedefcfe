#pragma once
#include <QStringList>
#include <functional>
#include <utility>

#include "forms/signal.h"
#include "forms/valeur.h"

/// How a field is filled in, and what it then holds.
enum class TGenreChamp {
  Texte,         ///< QString
  Lignes,        ///< QString, several lines
  Entier,        ///< int
  Montant,       ///< Currency, up to four decimals
  Date,          ///< TDateTime
  Heure,         ///< TDateTime
  Choix,         ///< int, the index of what is offered; -1 for none
  Coche,         ///< int, 0 or 1
  TexteMontant,  ///< QString, an amount kept as it was typed
  Secret,        ///< QString, not shown
};

/// What is said of a field, once for form, view and test.
struct TChamp {
  QString Nom = {};      ///< of the control: "edLocalite"
  QString Libelle = {};  ///< "N° compte :"; of a box, what stands behind it
  TGenreChamp Genre = TGenreChamp::Texte;
  int Longueur = 0;          ///< characters that its column takes; 0 when the kind knows it
  QString Nomme = {};        ///< read aloud and said in messages, where the label does not tell enough
  int Largeur = 0;           ///< at 10 points; 0 for what its kind takes
  bool Obligatoire = false;  ///< an empty text is no value: it does not convert
  QString Refus = {};    ///< what is said of a text that does not convert; "" for the conversion's own words
  QString Unite = {};    ///< behind the field: "euros"
  bool Suite = false;    ///< stands behind the field before it, on the same row
  bool Boutons = false;  ///< a Choix that shows a button for each value
  int Colonne = 0;       ///< of the panel, from the left
  std::function<QStringList()> Choix = {};  ///< what a Choix offers
  std::function<void()> Ensuite = {};       ///< what follows a change that was stored
};

/// What the field is called: "Localité", without the colon of its label.
QString NomDuChamp(const TChamp& champ);
/// The text of a value as its field shows it, and back. Raises EConvertError.
QString TexteDuChamp(const TChamp& champ, const TValeurVue& valeur);
TValeurVue ValeurDuTexte(const TChamp& champ, const QString& texte);

/// The fields of one record and what is typed in them. A field that is left is converted; its value is
/// written and stored at once, or kept until all are written together. What is refused stays as it was
/// typed, with its fault, until it is typed again, given up, or another record comes.
class TChamps {
 public:
  enum TQuand { TousALaFois, Aussitot };

  virtual ~TChamps() = default;
  TChamps(const TChamps&) = delete;
  TChamps& operator=(const TChamps&) = delete;

  int Nombre() const { return static_cast<int>(etats_.size()); }
  virtual const TChamp& Champ(int champ) const = 0;
  /// -1 when there is none of that name.
  int Indice(const QString& nom) const;

  // What is shown.
  /// A record is in hand, or one is being made.
  bool Actifs() const { return actifs_; }
  QString Texte(int champ) const { return etats_[Place(champ)].Texte; }
  const TValeurVue& Valeur(int champ) const { return etats_[Place(champ)].Valeur; }
  int Entier(int champ) const;
  /// "" for a field without one.
  QString Faute(int champ) const { return etats_[Place(champ)].Faute; }
  /// Something was typed or chosen that is not stored.
  bool Modifies() const;
  bool LectureSeule() const { return lectureSeule_; }
  void DefinirLectureSeule(bool lecture);

  // What the hand does.
  /// The text of a field while it is typed in.
  void Taper(int champ, const QString& texte);
  /// The field is left, in whatever way. False when its text is refused: the hand belongs in it.
  bool Quitter(int champ);
  /// A box, a button or a list: the value is whole at once. False when it was refused and is back.
  bool Choisir(int champ, int valeur);
  /// The field in which something was typed, if any, is left. False when one is refused.
  bool QuitterTout();
  /// The same, and every text must convert, those too that nobody touched.
  bool Verifier();
  /// Escape in that field gives the stored value again; in a panel it leaves the panel.
  bool RendEnEchappant(int champ) const { return quand_ == Aussitot && etats_[Place(champ)].EstEnCours(); }
  /// What the field of a new record holds at first.
  void Proposer(int champ, const TValeurVue& valeur) { Montrer(champ, valeur); }
  /// The stored value again.
  void Abandonner(int champ);
  /// The same for all.
  void AbandonnerTout();
  /// Marks the field, sends the hand there and answers false.
  bool Refuser(int champ, const QString& faute);
  bool Refuser(const QString& nom, const QString& faute) { return Refuser(Indice(nom), faute); }

  // How a form takes part.
  /// Stores the record after the field has been written; raises Exception when it cannot, after which the old
  /// value is written back. Only when fields are stored at once.
  std::function<void(const TChamp&)> SurEnregistrer;
  /// Says what was refused. Called once a fault.
  std::function<void(const TChamp&, const QString&)> SurRefus;
  /// The same of a record that could not be stored; by default as any refusal.
  std::function<void(const TChamp&, const QString&)> SurEchec;
  /// Whether something may be chosen now; a form says why not.
  std::function<bool()> SurPermission;
  /// A field for typing that is left is written and stored though its value is the same.
  bool EcrireToujours = false;

  /// Text, value or fault of a field has changed; -1 for all.
  TSignal<int> SurChangement;
  /// The hand is to go to that field.
  TSignal<int> SurFoyer;

 protected:
  TChamps(std::size_t nombre, TQuand quand) : etats_(nombre), quand_(quand) {}

  /// Of the record in hand.
  virtual TValeurVue Lire(int champ) const = 0;
  virtual void Ecrire(int champ, const TValeurVue& valeur) = 0;

  /// Shows the record in hand. What is being typed, and what was refused, stays unless it is another record.
  void Relire(bool autre, bool actifs);
  /// Empty fields, with the first choice of each list and no box ticked.
  void Effacer();
  /// Every value into the record in hand. Nothing may be pending.
  void EcrireTout();

 private:
  struct TEtat {
    QString Texte;
    TValeurVue Valeur;
    TValeurVue Depart;  ///< as it is stored
    QString Faute;
    bool Tape = false;  ///< since it was last left

    /// What it holds is not what is stored.
    bool EstEnCours() const { return Tape || !Faute.isEmpty() || Valeur != Depart; }
  };

  std::size_t Place(int champ) const { return static_cast<std::size_t>(champ); }
  /// The value of what is typed; else the fault, which is returned.
  QString Convertir(int champ, TValeurVue& valeur) const;
  void Montrer(int champ, const TValeurVue& valeur);
  bool Prendre(int champ, const TValeurVue& valeur);
  bool Conserver(int champ, const TValeurVue& valeur);
  bool Echouer(int champ, const QString& faute,
               const std::function<void(const TChamp&, const QString&)>& dire);

  std::vector<TEtat> etats_;
  TQuand quand_;
  bool actifs_ = false;
  bool lectureSeule_ = false;
  bool enCours_ = false;  ///< a field is being stored, and what it says may take the focus
};

/// How a field reads and writes a record.
template <class T>
struct TAcces {
  std::function<TValeurVue(const T&)> Lire;
  std::function<void(T&, const TValeurVue&)> Ecrire;
};

template <class T>
struct TChampDe {
  TChamp Champ;
  TAcces<T> Acces;
};

template <class T>
using TTableChamps = std::vector<TChampDe<T>>;

/// A value as a member holds it: flags and enumerations are numbers. Nothing is 0, "" or false.
template <class M>
M ValeurEn(const TValeurVue& valeur) {
  if constexpr (std::is_enum_v<M> || std::is_same_v<M, bool>) {
    const int* nombre = std::get_if<int>(&valeur);
    return static_cast<M>(nombre ? *nombre : 0);
  } else {
    const M* lue = std::get_if<M>(&valeur);
    return lue ? *lue : M{};
  }
}

template <class M>
TValeurVue ValeurDe(const M& membre) {
  if constexpr (std::is_enum_v<M> || std::is_same_v<M, bool>)
    return static_cast<int>(membre);
  else
    return membre;
}

/// A field that is a member of the record.
template <class T, class M>
TAcces<T> Membre(M T::*membre) {
  return {[membre](const T& objet) { return ValeurDe(objet.*membre); },
          [membre](T& objet, const TValeurVue& valeur) { objet.*membre = ValeurEn<M>(valeur); }};
}

/// The fields of a T by their table. The record outlives its being shown.
template <class T>
class TChampsDe : public TChamps {
 public:
  TChampsDe(TTableChamps<T> table, TQuand quand) : TChamps(table.size(), quand), table_(std::move(table)) {}

  const TChamp& Champ(int champ) const override { return table_[static_cast<std::size_t>(champ)].Champ; }
  /// Null empties the fields, which then answer to nothing.
  void Montrer(T* objet) {
    const bool autre = objet != objet_;
    objet_ = objet;
    Relire(autre, objet != nullptr);
  }
  /// The fields of a record that does not exist yet.
  void Nouveau() {
    objet_ = nullptr;
    Effacer();
  }
  /// Every value into that record, which need not be the one in hand.
  void EcrireDans(T& objet) {
    T* const enMain = std::exchange(objet_, &objet);
    EcrireTout();
    objet_ = enMain;
  }
  T* Objet() const { return objet_; }
  const TTableChamps<T>& Table() const { return table_; }

 protected:
  TValeurVue Lire(int champ) const override {
    return objet_ ? table_[static_cast<std::size_t>(champ)].Acces.Lire(*objet_) : TValeurVue();
  }
  void Ecrire(int champ, const TValeurVue& valeur) override {
    if (objet_) table_[static_cast<std::size_t>(champ)].Acces.Ecrire(*objet_, valeur);
  }

 private:
  TTableChamps<T> table_;
  T* objet_ = nullptr;
};
