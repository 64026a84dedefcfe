#pragma once
#include "core/distributor.h"
#include "core/exceptions.h"
#include "forms/champs.h"
#include "forms/grille.h"
#include "screens/contexte_ecran.h"
#include "workflows/memoriser.h"

using namespace Qt::StringLiterals;

enum class TModeEdition { Lecture, Nouveau, Modification };

/// What a list screen says of its rows. Whole texts, as gender and article change with the word.
struct TTextesListe {
  QString Titre;         ///< of the screen
  QString Liste;         ///< what the list is: "Tarifs"
  QString Lecture;       ///< heads of the panel, by mode: "Tarif"
  QString Nouveau;       ///< "Nouveau tarif"
  QString Modification;  ///< "Modification du tarif"
  QString Enregistre;    ///< "Tarif enregistré"
  QString Supprime;      ///< "Tarif supprimé"
  QString Retabli;       ///< "Tarif rétabli"
  QString Question;      ///< before a deletion
  QString Vide;          ///< instead of a list without a row: "Aucun tarif."
  QString VideSuite;     ///< and what follows from that
};

/// A list with its panel: the rows of a collection, and the fields of one of them to read, change or add.
/// It handles Enregistrer, Supprimer, Modifier and Nouveau, each when its mode allows it.
class TFrmListe : public TForm {
 public:
  const TTextesListe& Textes() const { return textes_; }
  virtual TChamps& Champs() = 0;
  virtual const TChamps& Champs() const = 0;
  TModeEdition Mode() const { return mode_; }
  /// Head of the panel.
  QString TitrePanneau() const;
  /// Something typed or chosen is not stored yet.
  virtual bool EstModifie() const { return mode_ != TModeEdition::Lecture && Champs().Modifies(); }

  void Nouveau();
  void Modifier();
  /// Stores what the fields hold; false when something was refused, and then the panel stays as it is.
  bool Enregistrer();
  /// Asks first.
  void Supprimer();
  /// Leaves the panel; the fields show the row again.
  void Annuler();
  /// The record deleted last comes back as a new row; only until the next change.
  void Retablir();
  bool PeutRetablir() const { return !supprime_.empty(); }
  /// It stores or deletes: nothing else can be begun.
  bool EstOccupe() const { return occupe_; }
  /// The rows and columns of the list, in the order in which they are shown, in a preview.
  void Imprimer(const std::vector<int>& lignes, const std::vector<int>& colonnes);

  bool RecevoirMessage(const TMessage& message) override;
  bool Accepte(TCodeMessage code) const override;
  /// Nothing is stored before `Enregistrer`: what is typed stays in its field.
  bool LaisserChamp() override;
  QString EnSuspens() const override;

  TGrille Grille;

 protected:
  TFrmListe(TContexteEcran& contexte, TTextesListe textes);
  void FormShow() override;
  bool FormCloseQuery() override;

  TContexteEcran& Contexte() const { return contexte_; }
  /// Fills the list anew; the current row stays on its object.
  virtual void Remplir() = 0;
  /// The panel shows the current row; none empties it.
  virtual void MontrerLigne() = 0;
  virtual void MontrerNouveau() = 0;
  /// Before the texts are converted; false keeps the panel as it is.
  virtual bool Controler() { return true; }
  /// Writes the fields into a new object or the current one and stores it. Raises Exception after memory is
  /// again what the table holds.
  virtual void Ranger(bool nouveau) = 0;
  /// Removes the current row and stores that; returns what brings it back. Raises Exception as `Ranger`.
  virtual TCellules Oter() = 0;
  virtual void Remettre(const TCellules& valeurs) = 0;
  /// What the user should know of the current row, which was just stored; "" for nothing.
  virtual QString Avis() const { return {}; }
  /// A row was stored, removed or brought back.
  virtual void ApresChangement() {}

 private:
  struct TAction {
    TCodeMessage Code;
    bool EnLecture;  ///< else while one writes
    bool SurLigne;   ///< needs a current row
    void (TFrmListe::*Faire)();
  };
  static const TAction* ActionDe(TCodeMessage code);
  void EnregistrerClick() { Enregistrer(); }
  void Passer(TModeEdition mode);
  bool Essayer(const std::function<void()>& faire);
  void Dire(TNiveauEtat niveau, const QString& texte) const { contexte_.Principal.Etat(niveau, texte); }

  TContexteEcran& contexte_;
  TTextesListe textes_;
  TModeEdition mode_ = TModeEdition::Lecture;
  TCellules supprime_;
  bool occupe_ = false;
  TLiens liens_;
};

/// A column of a list of T: how it looks, and its value.
template <class T>
struct TColonneDe {
  TColonneGrille Colonne;
  std::function<TValeurVue(const T&)> Lire;
};

/// The list screen over a collection of T: a table of columns and a table of fields.
template <class T>
class TFrmListeDe : public TFrmListe {
 public:
  TChampsDe<T>& Champs() override { return champs_; }
  const TChampsDe<T>& Champs() const override { return champs_; }
  /// The object of the current row; null for none.
  T* Courant() const {
    const int ligne = Grille.LigneCourante();
    return ligne < 0 ? nullptr : Grille.Ligne(ligne).Objet.template En<T>();
  }

 protected:
  TFrmListeDe(TContexteEcran& contexte, TTextesListe textes, std::vector<TColonneDe<T>> colonnes,
              TTableChamps<T> champs)
      : TFrmListe(contexte, std::move(textes)),
        colonnes_(std::move(colonnes)),
        champs_(std::move(champs), TChamps::TousALaFois) {
    std::vector<TColonneGrille> vues;
    for (const TColonneDe<T>& colonne : colonnes_) vues.push_back(colonne.Colonne);
    Grille.DefinirColonnes(std::move(vues));
  }

  virtual TCollection<T>& Collection() const = 0;
  /// What a new object holds beside its fields.
  virtual void Preparer(T& /*nouveau*/) {}
  /// The state of a row, when the list has states.
  virtual int Etat(const T& /*objet*/) const { return 0; }

  void Remplir() override {
    T* courant = Courant();
    {
      const TGrille::TLot lot(Grille);
      Grille.Vider();
      for (T& objet : Collection()) {
        TCellules cellules;
        for (const TColonneDe<T>& colonne : colonnes_) cellules.push_back(colonne.Lire(objet));
        Grille.Ajouter(std::move(cellules), &objet, Etat(objet));
      }
    }
    Choisir(courant);
  }
  void MontrerLigne() override { champs_.Montrer(Courant()); }
  void MontrerNouveau() override { champs_.Nouveau(); }

  void Ranger(bool nouveau) override {
    T* courant = nouveau ? nullptr : Courant();
    courant ? RangerModification(*courant) : RangerNouveau([this](T& objet) { champs_.EcrireDans(objet); });
  }

  TCellules Oter() override {
    T& objet = *Courant();
    TCellules valeurs = Valeurs(objet);
    champs_.Montrer(nullptr);
    Collection().Remove(objet);
    Sauver();
    Remplir();
    return valeurs;
  }

  void Remettre(const TCellules& valeurs) override {
    RangerNouveau([&](T& objet) { Ecrire(objet, valeurs); });
  }

  void Choisir(const T* objet) {
    Grille.ChoisirLigne(objet ? Grille.TrouverObjet(const_cast<T*>(objet)) : -1);
    if (Mode() == TModeEdition::Lecture) MontrerLigne();
  }

 private:
  TCellules Valeurs(const T& objet) const {
    TCellules valeurs;
    for (const TChampDe<T>& champ : champs_.Table()) valeurs.push_back(champ.Acces.Lire(objet));
    return valeurs;
  }
  void Ecrire(T& objet, const TCellules& valeurs) const {
    for (std::size_t i = 0; i < valeurs.size(); ++i) champs_.Table()[i].Acces.Ecrire(objet, valeurs[i]);
  }

  void RangerModification(T& objet) {
    champs_.EcrireDans(objet);
    Collection().Add(objet);
    Sauver();
    Remplir();
  }

  void RangerNouveau(const std::function<void(T&)>& remplir) {
    auto neuf = std::make_unique<T>();
    Preparer(*neuf);
    remplir(*neuf);
    const T& objet = Collection().Add(std::move(neuf));
    Sauver(&objet);
    Remplir();
    Choisir(&objet);
  }

  /// A refused save leaves nothing behind: memory is again what the table holds.
  void Sauver(const T* neuf = nullptr) {
    try {
      Collection().Save();
      if (neuf != nullptr) ExigerCle(*neuf);
      if (Collection().RangeesDisparues().empty()) return;
    } catch (const Exception&) {
      Collection().Remettre();
      Remplir();
      throw;
    }
    Collection().Remettre();
    Remplir();
    throw Exception(
        u"Cette ligne n'existe plus : un autre poste l'a supprimée. L'enregistrer l'ajoutera de nouveau."_s);
  }

  std::vector<TColonneDe<T>> colonnes_;
  TChampsDe<T> champs_;
};
