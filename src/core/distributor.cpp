#include "core/distributor.h"

#include <QSqlError>
#include <QSqlQuery>
#include <algorithm>

#include "core/data_module.h"
#include "core/data_set.h"
#include "core/exceptions.h"
#include "core/firebird.h"

using namespace Qt::StringLiterals;

/// The statements of one Save, prepared when first needed.
class TDistributor::TEnregistrement {
 public:
  explicit TEnregistrement(TDistributor& collection) : c_(collection) {}

  /// True when the row was there.
  bool Supprimer(const TBaseObject& objet) {
    if (!suppression_)
      suppression_ =
          Preparer(u"DELETE FROM " % c_.TableName % u" WHERE " % QString::fromLatin1(c_.KeyField) % u" = ?");
    suppression_->bindValue(0, objet.Id);
    return Executer(*suppression_) > 0;
  }

  /// False when the row has disappeared.
  bool Modifier(const TBaseObject& objet) {
    Remplir(objet);
    if (!modification_ || colonnesModification_ != ligne_.Colonnes()) {
      QString sql = u"UPDATE " % c_.TableName % u" SET ";
      for (const QByteArray& colonne : ligne_.Colonnes()) sql += QString::fromLatin1(colonne) % u" = ?, ";
      sql.chop(2);
      modification_ = Preparer(sql % u" WHERE " % QString::fromLatin1(c_.KeyField) % u" = ?");
      colonnesModification_ = ligne_.Colonnes();
    }
    const int suite = Lier(*modification_, 0);
    modification_->bindValue(suite, objet.Id);
    return Executer(*modification_) > 0;
  }

  void Inserer(const TBaseObject& objet) {
    Remplir(objet);
    if (!insertion_ || colonnesInsertion_ != ligne_.Colonnes()) {
      QString sql = u"INSERT INTO " % c_.TableName % u" (" % QString::fromLatin1(c_.KeyField);
      QString places = u"?"_s;
      for (const QByteArray& colonne : ligne_.Colonnes()) {
        sql += u", " % QString::fromLatin1(colonne);
        places += u", ?";
      }
      insertion_ = Preparer(sql % u") VALUES (" % places % u')');
      colonnesInsertion_ = ligne_.Colonnes();
    }
    insertion_->bindValue(0, objet.Id);
    Lier(*insertion_, 1);
    Executer(*insertion_);
  }

 private:
  void Remplir(const TBaseObject& objet) {
    ligne_.Vider();
    c_.StoreRecord(objet, ligne_);
  }

  std::unique_ptr<QSqlQuery> Preparer(const QString& sql) {
    auto requete = std::make_unique<QSqlQuery>(c_.Base().UniConnection1());
    requete->setForwardOnly(true);
    if (!requete->prepare(sql)) Echec(*requete);
    return requete;
  }

  /// Binds the row from this place on; the place after it.
  int Lier(QSqlQuery& requete, int place) const {
    for (const QVariant& valeur : ligne_.Valeurs()) requete.bindValue(place++, valeur);
    return place;
  }

  static int Executer(QSqlQuery& requete) {
    if (!requete.exec()) Echec(requete);
    return requete.numRowsAffected();
  }

  [[noreturn]] static void Echec(const QSqlQuery& requete) {
    throw EDistributor(MessageBaseDeDonnees(requete.lastError().text()));
  }

  TDistributor& c_;
  TLigne ligne_;
  std::unique_ptr<QSqlQuery> suppression_, modification_, insertion_;
  std::vector<QByteArray> colonnesModification_, colonnesInsertion_;
};

TDistributor::~TDistributor() {
  // From the last to the first, as a row may look at those before it.
  while (!Items.empty()) Items.pop_back();
}

void TDistributor::Charger() {
  if (Source != nullptr) {
    for (bool la = Source->Premier(); la; la = Source->Suivant()) {
      LoadFromSource(*Source);
      if (!Items.empty()) Entre(*Items.back());
    }
    return;
  }
  DefineQuery();
  try {
    TCurseur ligne = Cles.empty() ? TCurseur(*base_, SelectSql) : TCurseur(*base_, SelectSql, Cles);
    while (ligne.Suivant()) {
      LoadItems(ligne);
      if (!Items.empty()) Entre(*Items.back());
    }
  } catch (const EDistributor&) {
    throw;
  } catch (const Exception& e) {
    throw EDistributor(e.Message);
  }
}

void TDistributor::LoadFromSource(TDataSet&) {
  throw EDistributor(u"Cette liste n'existe pas hors ligne."_s);
}

void TDistributor::LireCle(TCurseur& ligne, TBaseObject& objet) const {
  objet.Id = ligne.Entier(KeyField.constData());
}

std::size_t TDistributor::Indice(const TBaseObject& objet) const {
  const auto i = std::lower_bound(Items.begin(), Items.end(), objet.Rang(),
                                  [](const auto& a, int rang) { return a->Rang() < rang; });
  return i != Items.end() && i->get() == &objet ? static_cast<std::size_t>(i - Items.begin()) : Items.size();
}

bool TDistributor::Contient(const TBaseObject& objet) const { return Indice(objet) < Items.size(); }

TBaseObject& TDistributor::Charge(std::unique_ptr<TBaseObject> objet) {
  objet->rang_ = prochainRang_++;
  Items.push_back(std::move(objet));
  return *Items.back();
}

TBaseObject& TDistributor::Ajouter(std::unique_ptr<TBaseObject> objet) {
  TBaseObject& place = Charge(std::move(objet));
  place.Status = TStatus::Nouveau;
  Position = Count() - 1;
  Entre(place);
  return place;
}

void TDistributor::Toucher(TBaseObject& objet) {
  if (!Contient(objet)) return;
  if (objet.Status == TStatus::Inchange) objet.Status = TStatus::Modifie;
  Entre(objet);
}

std::unique_ptr<TBaseObject> TDistributor::Detacher(TBaseObject& objet) {
  const std::size_t i = Indice(objet);
  if (i >= Items.size()) return nullptr;
  Sort(objet);
  auto sorti = std::move(Items[i]);
  Items.erase(Items.begin() + static_cast<std::ptrdiff_t>(i));
  sorti->rang_ = -1;
  return sorti;
}

std::unique_ptr<TBaseObject> TDistributor::Retirer(TBaseObject& objet) {
  auto sorti = Detacher(objet);
  if (!sorti || sorti->Id == -1) return sorti;
  sorti->Status = TStatus::Supprime;
  Deleted.push_back(std::move(sorti));
  Position = -1;
  return nullptr;
}

std::unique_ptr<TBaseObject> TDistributor::Oublier(TBaseObject& objet) {
  if (!Contient(objet)) return nullptr;
  objet.Id = -1;
  return Retirer(objet);
}

bool TDistributor::Save() {
  if (base_ == nullptr) throw EDistributor(u"Une liste hors ligne ne s'enregistre pas."_s);
  TEnregistrement enregistrement(*this);
  try {
    for (std::size_t i = Deleted.size(); i-- > 0;)
      if (enregistrement.Supprimer(*Deleted[i]))
        Deleted.erase(Deleted.begin() + static_cast<std::ptrdiff_t>(i));
    const std::size_t nombre = Items.size();
    bool sansCle = false;  // the counter has failed and the user knows: it is not asked again for each object
    for (std::size_t i = 0; i < nombre; ++i) {
      TBaseObject& objet = *Items[i];
      if (objet.Status == TStatus::Modifie) {
        if (!enregistrement.Modifier(objet)) continue;
      } else if (objet.Status == TStatus::Nouveau) {
        if (sansCle) continue;
        if (CounterName != u"*") objet.Id = base_->GetNextId(CounterName);
        sansCle = objet.Id == -1 && CounterName != u"*";
        if (objet.Id == -1) continue;
        enregistrement.Inserer(objet);
        Entre(objet);  // its key is known now
      } else {
        continue;
      }
      objet.Status = TStatus::Inchange;
    }
  } catch (const EDistributor&) {
    throw;
  } catch (const Exception& e) {
    throw EDistributor(e.Message);
  }
  return true;
}
