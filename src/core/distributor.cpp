#include "core/distributor.h"

#include <algorithm>
#include <climits>
#include <unordered_map>

#include "core/data_module.h"
#include "core/data_set.h"
#include "core/exceptions.h"
#include "core/firebird_interne.h"

using namespace Qt::StringLiterals;

namespace {

/// Does it, and gives every failure the type of the collections'.
template <class Action>
void EnDistributor(Action action) {
  try {
    action();
  } catch (const EDistributor&) {
    throw;
  } catch (const Exception& e) {
    throw EDistributor(e.Message);
  }
}

QByteArray Liste(const std::vector<const char*>& noms, const char* suite) {
  QByteArray liste;
  for (const char* nom : noms) liste.append(nom).append(suite);
  liste.chop(2);
  return liste;
}

}  // namespace

/// The statements of one Save, prepared when first needed. In a row the key comes last.
class TDistributor::TEnregistrement {
 public:
  explicit TEnregistrement(TDistributor& collection)
      : c_(collection), base_(c_.Base().Attache()), table_(c_.TableName.toUtf8()), cle_(c_.KeyField) {}

  /// True when the row was there.
  bool Supprimer(const TBaseObject& objet) {
    if (!suppression_) suppression_ = base_.Preparer("DELETE FROM " + table_ + " WHERE " + cle_ + " = ?");
    return base_.Executer(*suppression_, {objet.Id}) > 0;
  }

  /// False when the row has disappeared.
  bool Modifier(const TBaseObject& objet) {
    Remplir(objet);
    if (!modification_) {
      std::vector<const char*> champs = ligne_.Colonnes();
      champs.pop_back();
      modification_ =
          base_.Preparer("UPDATE " + table_ + " SET " + Liste(champs, " = ?, ") + " WHERE " + cle_ + " = ?");
    }
    return base_.Executer(*modification_, ligne_.Valeurs()) > 0;
  }

  void Inserer(const TBaseObject& objet) {
    Remplir(objet);
    if (!insertion_) {
      const std::vector<const char*> places(ligne_.Colonnes().size(), "?");
      insertion_ = base_.Preparer("INSERT INTO " + table_ + " (" + Liste(ligne_.Colonnes(), ", ") +
                                  ") VALUES (" + Liste(places, ", ") + ')');
    }
    base_.Executer(*insertion_, ligne_.Valeurs());
  }

 private:
  void Remplir(const TBaseObject& objet) {
    ligne_.Vider();
    c_.StoreRecord(objet, ligne_);
    for (const auto& [colonne, valeur] : c_.Communes) ligne_.Ecrire(colonne, valeur);
    ligne_.Ecrire(c_.KeyField, objet.Id);
  }

  TDistributor& c_;
  Firebird::TAttache& base_;
  QByteArray table_, cle_;
  TLigne ligne_;
  std::unique_ptr<Firebird::TInstruction> suppression_, modification_, insertion_;
};

TDistributor::~TDistributor() {
  // From the last to the first, as a row may look at those before it.
  while (!Items.empty()) Items.pop_back();
}

void TDistributor::Charger() {
  if (Source != nullptr) {
    for (bool la = Source->Premier(); la; la = Source->Suivant()) LoadFromSource(*Source);
    return;
  }
  DefineQuery();
  EnDistributor([this] {
    TCurseur ligne = Cles.empty() ? TCurseur(*base_, SelectSql) : TCurseur(*base_, SelectSql, Cles);
    while (ligne.Suivant()) LoadItems(ligne);
  });
}

void TDistributor::LoadFromSource(TDataSet&) {
  throw EDistributor(u"Cette liste n'existe pas hors ligne."_s);
}

std::size_t TDistributor::Indice(const TBaseObject& objet) const {
  const auto i = std::lower_bound(Items.begin(), Items.end(), objet.Rang(),
                                  [](const auto& a, int rang) { return a->Rang() < rang; });
  return i != Items.end() && i->get() == &objet ? static_cast<std::size_t>(i - Items.begin()) : Items.size();
}

bool TDistributor::Contains(const TBaseObject& objet) const { return Indice(objet) < Items.size(); }

TBaseObject& TDistributor::Inserer(std::unique_ptr<TBaseObject> objet) {
  objet->rang_ = prochainRang_++;
  Items.push_back(std::move(objet));
  return *Items.back();
}

TBaseObject& TDistributor::Placer(std::unique_ptr<TBaseObject> objet) {
  TBaseObject& place = Inserer(std::move(objet));
  Completer(place);
  Suivre(place);
  return place;
}

void TDistributor::Suivre(TBaseObject& objet) {
  if (clesIndexees_) parCle_.Suivre(objet, objet.Id);
  Indexer(objet);
}

TBaseObject* TDistributor::ParCle(int cle) const {
  if (!clesIndexees_) {
    for (const auto& objet : Items) parCle_.Suivre(*objet, objet->Id);
    clesIndexees_ = true;
  }
  return parCle_.Premier(cle);
}

TBaseObject& TDistributor::Add(std::unique_ptr<TBaseObject> objet) {
  TBaseObject& place = Inserer(std::move(objet));
  place.Status = TStatus::Nouveau;
  Position = Count() - 1;
  Attendre(Items.size() - 1);
  Suivre(place);
  return place;
}

void TDistributor::Add(TBaseObject& objet) {
  const std::size_t i = Indice(objet);
  if (i >= Items.size()) return;
  if (objet.Status == TStatus::Inchange) objet.Status = TStatus::Modifie;
  Attendre(i);
  Suivre(objet);
}

std::unique_ptr<TBaseObject> TDistributor::Detacher(TBaseObject& objet) {
  const std::size_t i = Indice(objet);
  if (i >= Items.size()) return nullptr;
  if (clesIndexees_) parCle_.Oublier(objet);
  Desindexer(objet);
  std::erase(Disparus, &objet);
  auto sorti = std::move(Items[i]);
  Items.erase(Items.begin() + static_cast<std::ptrdiff_t>(i));
  if (i < premierEnAttente_) --premierEnAttente_;
  return sorti;
}

std::unique_ptr<TBaseObject> TDistributor::Remove(TBaseObject& objet) {
  auto sorti = Detacher(objet);
  if (!sorti) return sorti;
  if (sorti->Id == -1) {
    sorti->rang_ = -1;
    return sorti;
  }
  sorti->Status = TStatus::Supprime;
  Deleted.push_back(std::move(sorti));  // with its rank, so that it can come back in its place
  Position = -1;
  return nullptr;
}

std::unique_ptr<TBaseObject> TDistributor::Forget(TBaseObject& objet) {
  if (!Contains(objet)) return nullptr;
  objet.Id = -1;
  return Remove(objet);
}

bool TDistributor::Save() {
  if (base_ == nullptr) throw EDistributor(u"Une liste hors ligne ne s'enregistre pas."_s);
  Disparus.clear();
  EnDistributor([this] {
    if (Enregistrer() && OrdreDuSelect) Ranger();
  });
  return true;
}

// True when a row was written. A row a Save, as an import writes them, must not look at all the rows before.
bool TDistributor::Enregistrer() {
  TEnregistrement enregistrement(*this);
  bool ecrit = false;
  for (std::size_t i = Deleted.size(); i-- > 0;)
    if (enregistrement.Supprimer(*Deleted[i]))
      Deleted.erase(Deleted.begin() + static_cast<std::ptrdiff_t>(i));
  const std::size_t nombre = Items.size();
  bool sansCle = false;  // the counter has failed and the user knows: it is not asked again for each object
  std::size_t enAttente = nombre;
  for (std::size_t i = premierEnAttente_; i < nombre; ++i) {
    TBaseObject& objet = *Items[i];
    const auto attendre = [&] { enAttente = std::min(enAttente, i); };
    if (objet.Status == TStatus::Modifie) {
      if (!enregistrement.Modifier(objet)) {
        Disparus.push_back(&objet);
        attendre();
        continue;
      }
    } else if (objet.Status == TStatus::Nouveau) {
      if (!sansCle && CounterName != u"*") {
        objet.Id = base_->GetNextId(CounterName);
        sansCle = objet.Id == -1;
      }
      if (sansCle || objet.Id == -1) {
        attendre();
        continue;
      }
      enregistrement.Inserer(objet);
      Suivre(objet);  // its key is known now
    } else {
      continue;
    }
    objet.Status = TStatus::Inchange;
    ecrit = true;
  }
  premierEnAttente_ = enAttente;
  return ecrit;
}

// False when the row has disappeared.
bool TDistributor::Relire(TBaseObject& objet) {
  TCurseur ligne(*base_, u"SELECT * FROM " % TableName % u" WHERE " % QLatin1String(KeyField) % u" = ?",
                 {objet.Id});
  if (!ligne.Suivant()) return false;
  LoadRecord(objet, ligne);
  objet.Status = TStatus::Inchange;
  Completer(objet);
  return true;
}

void TDistributor::Remettre() {
  EnDistributor([this] {
    for (std::size_t i = Items.size(); i-- > 0;) {
      TBaseObject& objet = *Items[i];
      if (objet.Status == TStatus::Inchange) continue;
      if (objet.Status == TStatus::Modifie && Relire(objet))
        Suivre(objet);
      else
        Detacher(objet);
    }
    while (!Deleted.empty()) {
      const bool la = Relire(*Deleted.back());
      auto objet = std::move(Deleted.back());
      Deleted.pop_back();
      if (la) Reprendre(std::move(objet));
    }
    Disparus.clear();
    if (OrdreDuSelect) Ranger();
  });
}

void TDistributor::Reprendre(std::unique_ptr<TBaseObject> objet) {
  const auto place = std::lower_bound(Items.begin(), Items.end(), objet->Rang(),
                                      [](const auto& a, int rang) { return a->Rang() < rang; });
  TBaseObject& repris = **Items.insert(place, std::move(objet));
  Suivre(repris);
}

// The keys in the order of the select statement; objects that have no row stay behind them.
void TDistributor::Ranger() {
  std::unordered_map<int, int> places;
  TCurseur ligne(*base_, SelectSql, Cles);
  while (ligne.Suivant()) places.emplace(ligne.Entier(KeyField), static_cast<int>(places.size()));
  const auto place = [&](const std::unique_ptr<TBaseObject>& objet) {
    const auto i = places.find(objet->Id);
    return i == places.end() ? INT_MAX : i->second;
  };
  premierEnAttente_ = 0;
  for (const auto& objet : Items) Desindexer(*objet);
  std::ranges::stable_sort(Items, {}, place);
  parCle_ = {};
  clesIndexees_ = false;
  for (const auto& objet : Items) {
    objet->rang_ = prochainRang_++;
    Indexer(*objet);
  }
}
