#include "forms/champs.h"

#include <QRegularExpression>
#include <QScopedValueRollback>
#include <algorithm>

#include "core/conversions.h"
#include "core/exceptions.h"
#include "core/formats.h"

using namespace Qt::StringLiterals;

namespace {

/// "7h30", "7.30" and "730" are times too.
TValeurVue HeureDuTexte(const QString& texte) {
  static const QRegularExpression kHeure(u"^(\\d{1,2})[:hH.]?(\\d{2})?$"_s);
  const QRegularExpressionMatch lue = kHeure.match(texte);
  if (!lue.hasMatch()) return StrToTime(texte);
  const QString minutes = lue.captured(2).isEmpty() ? u"00"_s : lue.captured(2);
  return StrToTime(lue.captured(1) % u':' % minutes);
}

TValeurVue TexteLimite(const TChamp& champ, const QString& texte) {
  if (champ.Longueur > 0 && texte.size() > champ.Longueur)
    throw EConvertError(
        u"Ce texte compte %1 caractères : %2 au plus."_s.arg(texte.size()).arg(champ.Longueur));
  return texte;
}

bool EstTexte(TGenreChamp genre) {
  using enum TGenreChamp;
  return genre == Texte || genre == Lignes || genre == TexteMontant || genre == Secret;
}

/// What is left of a mask in which nothing was typed is nothing.
bool EstVide(const QString& texte) { return QString(texte).remove(u':').trimmed().isEmpty(); }

}  // namespace

QString NomDuChamp(const TChamp& champ) {
  QString nom = (champ.Nomme.isEmpty() ? champ.Libelle : champ.Nomme).trimmed();
  if (nom.endsWith(u':')) nom.chop(1);
  return nom.trimmed();
}

QString TexteDuChamp(const TChamp& champ, const TValeurVue& valeur) {
  if (std::holds_alternative<std::monostate>(valeur)) return {};
  switch (champ.Genre) {
    case TGenreChamp::Entier:
      return champ.Obligatoire ? QString::number(ValeurEn<int>(valeur)) : IntOuVide(ValeurEn<int>(valeur));
    case TGenreChamp::Montant:
      return FormatPrix(ValeurEn<Currency>(valeur));
    case TGenreChamp::Date:
      return FormatDate(ValeurEn<TDateTime>(valeur));
    case TGenreChamp::Heure:  // midnight is an hour where one is due
      return champ.Obligatoire ? HeureVersQt(ValeurEn<TDateTime>(valeur)).toString(u"hh:mm"_s)
                               : FormatHeureCourte(ValeurEn<TDateTime>(valeur));
    case TGenreChamp::Choix:
    case TGenreChamp::Coche:
      return QString::number(ValeurEn<int>(valeur));
    default:
      return ValeurEn<QString>(valeur);
  }
}

TValeurVue ValeurDuTexte(const TChamp& champ, const QString& texte) {
  const bool simple = EstTexte(champ.Genre);
  if (!simple && !champ.Obligatoire && EstVide(texte)) return {};
  const bool absent = simple ? texte.trimmed().isEmpty()
                             : EstVide(texte) || (champ.Genre == TGenreChamp::Choix && texte == u"-1");
  if (champ.Obligatoire && absent) throw EConvertError(u"Ce champ doit être rempli."_s);
  switch (champ.Genre) {
    case TGenreChamp::Entier:
    case TGenreChamp::Choix:
    case TGenreChamp::Coche:
      return StrToInt(texte);
    case TGenreChamp::Montant:
      return StrToCurr(texte);
    case TGenreChamp::Date:
      return StrToDate(texte);
    case TGenreChamp::Heure:
      return HeureDuTexte(texte.trimmed());
    default:
      return TexteLimite(champ, texte);
  }
}

int TChamps::Indice(const QString& nom) const {
  for (int champ = 0; champ < Nombre(); ++champ)
    if (Champ(champ).Nom == nom) return champ;
  return -1;
}

int TChamps::Entier(int champ) const { return ValeurEn<int>(Valeur(champ)); }

bool TChamps::Modifies() const {
  return std::ranges::any_of(etats_, [](const TEtat& etat) { return etat.EstEnCours(); });
}

void TChamps::DefinirLectureSeule(bool lecture) {
  if (lecture == lectureSeule_) return;
  lectureSeule_ = lecture;
  SurChangement(-1);
}

void TChamps::Taper(int champ, const QString& texte) {
  TEtat& etat = etats_[Place(champ)];
  if (etat.Texte == texte) return;
  etat.Texte = texte;
  etat.Tape = true;
  etat.Faute.clear();
  SurChangement(champ);
}

bool TChamps::Quitter(int champ) {
  const TEtat& etat = etats_[Place(champ)];
  if (enCours_ || !actifs_ || lectureSeule_) return true;
  if (!etat.Tape && !etat.Faute.isEmpty()) return false;
  const TGenreChamp genre = Champ(champ).Genre;
  const bool tapable = genre != TGenreChamp::Choix && genre != TGenreChamp::Coche;
  if (!etat.Tape && !(EcrireToujours && tapable)) return true;
  const QScopedValueRollback enCours(enCours_, true);
  TValeurVue valeur;
  const QString faute = Convertir(champ, valeur);
  return faute.isEmpty() ? Prendre(champ, valeur) : Echouer(champ, faute, SurRefus);
}

QString TChamps::Convertir(int champ, TValeurVue& valeur) const {
  try {
    valeur = ValeurDuTexte(Champ(champ), Texte(champ));
    return {};
  } catch (const EConvertError& e) {
    return Champ(champ).Refus.isEmpty() ? e.Message : Champ(champ).Refus;
  }
}

bool TChamps::Choisir(int champ, int valeur) {
  if (enCours_ || lectureSeule_ || (SurPermission && !SurPermission()) || !actifs_) {
    SurChangement(champ);  // what the hand has switched goes back
    return false;
  }
  const QScopedValueRollback enCours(enCours_, true);
  if (Prendre(champ, valeur)) return true;
  Montrer(champ, Lire(champ));
  return false;
}

bool TChamps::Prendre(int champ, const TValeurVue& valeur) {
  TEtat& etat = etats_[Place(champ)];
  if (quand_ == Aussitot && (EcrireToujours || valeur != etat.Depart)) return Conserver(champ, valeur);
  etat = {TexteDuChamp(Champ(champ), valeur), valeur, etat.Depart, {}, false};
  SurChangement(champ);  // who follows sees that it is not stored
  return true;
}

bool TChamps::Conserver(int champ, const TValeurVue& valeur) {
  const TValeurVue avant = Lire(champ);
  Ecrire(champ, valeur);
  try {
    if (SurEnregistrer) SurEnregistrer(Champ(champ));
  } catch (const EConvertError& e) {  // the text is at fault, not the storing
    Ecrire(champ, avant);
    return Echouer(champ, e.Message, SurRefus);
  } catch (const Exception& e) {
    Ecrire(champ, avant);
    return Echouer(champ, e.Message, SurEchec ? SurEchec : SurRefus);
  }
  Montrer(champ, Lire(champ));
  if (Champ(champ).Ensuite) Champ(champ).Ensuite();
  return true;
}

bool TChamps::Echouer(int champ, const QString& faute,
                      const std::function<void(const TChamp&, const QString&)>& dire) {
  etats_[Place(champ)].Faute = faute;
  etats_[Place(champ)].Tape = false;
  SurChangement(champ);
  if (dire) dire(Champ(champ), faute);
  return false;
}

bool TChamps::QuitterTout() {
  for (int champ = 0; champ < Nombre(); ++champ) {
    const TEtat& etat = etats_[Place(champ)];
    if ((etat.Tape || !etat.Faute.isEmpty()) && !Quitter(champ)) return SurFoyer(champ), false;
  }
  return true;
}

bool TChamps::Verifier() {
  if (!QuitterTout()) return false;
  for (int champ = 0; champ < Nombre(); ++champ) {
    TValeurVue valeur;
    const QString faute = Convertir(champ, valeur);
    if (!faute.isEmpty()) return Refuser(champ, faute);
  }
  return true;
}

void TChamps::Abandonner(int champ) { Montrer(champ, etats_[Place(champ)].Depart); }

void TChamps::AbandonnerTout() {
  for (int champ = 0; champ < Nombre(); ++champ) Abandonner(champ);
}

bool TChamps::Refuser(int champ, const QString& faute) {
  Echouer(champ, faute, SurRefus);
  SurFoyer(champ);
  return false;
}

void TChamps::Montrer(int champ, const TValeurVue& valeur) {
  etats_[Place(champ)] = {TexteDuChamp(Champ(champ), valeur), valeur, valeur, {}, false};
  SurChangement(champ);
}

void TChamps::Relire(bool autre, bool actifs) {
  actifs_ = actifs;
  for (int champ = 0; champ < Nombre(); ++champ) {
    TEtat& etat = etats_[Place(champ)];
    if (!autre && etat.EstEnCours()) continue;
    const TValeurVue valeur = Lire(champ);
    etat = {TexteDuChamp(Champ(champ), valeur), valeur, valeur, {}, false};
  }
  SurChangement(-1);
}

void TChamps::Effacer() {
  actifs_ = true;
  for (int champ = 0; champ < Nombre(); ++champ) {
    const TGenreChamp genre = Champ(champ).Genre;
    const bool choix = genre == TGenreChamp::Choix || genre == TGenreChamp::Coche;
    etats_[Place(champ)] = {
        {}, choix ? TValeurVue(0) : TValeurVue(), choix ? TValeurVue(0) : TValeurVue(), {}, false};
  }
  SurChangement(-1);
}

void TChamps::EcrireTout() {
  for (int champ = 0; champ < Nombre(); ++champ) Ecrire(champ, Valeur(champ));
}
