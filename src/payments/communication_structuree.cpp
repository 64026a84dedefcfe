#include "payments/communication_structuree.h"

#include <cstdint>

#include "core/chaines.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kPremierIdentifiantTropGrand = 100000;
constexpr qsizetype kLongueurPresentee = 20;
constexpr QStringView kBord = u"+++";

QString Chiffres(std::int64_t nombre, int longueur) {
  return QString::number(nombre).rightJustified(longueur, u'0');
}

/// The ten digits with their check value.
QString Presenter(std::int64_t dixChiffres) {
  const std::int64_t reste = dixChiffres % 97;
  return CommunicationPresentee(Chiffres(dixChiffres, 10) % Chiffres(reste == 0 ? 97 : reste, 2));
}

QString SansSignes(const QString& communication) { return QString(communication).remove(u'+').remove(u'/'); }

bool Codable(IDialogues& dialogues, int eleveId) {
  if (eleveId < 1) return false;  // not stored yet
  if (eleveId < kPremierIdentifiantTropGrand) return true;
  dialogues.Message(u"L'identifiant élève est trop grand pour générer une communication structurée !"_s);
  return false;
}

QString CommunicationMois(IDialogues& dialogues, int eleveId, int mois, int anneeScolaire, int genre) {
  if (!Codable(dialogues, eleveId)) return {};
  return Presenter(((std::int64_t{eleveId} * 100 + mois) * 100 + anneeScolaire % 100) * 10 + genre);
}

}  // namespace

QString CommunicationServices(IDialogues& dialogues, int eleveId, int mois, int anneeScolaire) {
  return CommunicationMois(dialogues, eleveId, mois, anneeScolaire, 1);
}

QString CommunicationFrais(IDialogues& dialogues, int eleveId, int mois, int anneeScolaire) {
  return CommunicationMois(dialogues, eleveId, mois, anneeScolaire, 2);
}

QString CommunicationCompacte(IDialogues& dialogues, int eleveId, int genre, int anneeScolaire,
                              bool permanente) {
  if (!Codable(dialogues, eleveId)) return {};
  const int annee = permanente ? 0 : anneeScolaire % 100;
  return Presenter((std::int64_t{genre} * 1000000 + eleveId) * 1000 + annee);
}

QString CommunicationPresentee(const QString& chiffres) {
  return kBord % chiffres.first(3) % u'/' % chiffres.sliced(3, 4) % u'/' % chiffres.sliced(7) % kBord;
}

bool CommunicationValide(const QString& communication) {
  const QString chiffres = SansSignes(communication);
  if (chiffres.size() != 12 || !EstChiffres(chiffres)) return false;
  const std::int64_t nombre = chiffres.first(10).toLongLong();
  const std::int64_t controle = chiffres.sliced(10).toLongLong();
  return nombre % 97 == (controle == 97 ? 0 : controle);
}

QString CommunicationNormalisee(const QString& communication) {
  const QString copie = Remplacer(communication, u"++++++"_s, kBord.toString());
  if (copie.size() == kLongueurPresentee) return copie;
  return CommunicationValide(copie) ? CommunicationPresentee(SansSignes(copie)) : communication;
}

QString TexteInterieur(const QString& communication) {
  QString texte = communication;
  const qsizetype debut = texte.indexOf(kBord);
  if (debut < 0) return {};
  texte.remove(debut, kBord.size());
  const qsizetype fin = texte.indexOf(kBord);
  if (fin >= 0) texte.truncate(fin);
  return texte.size() == 14 ? texte : QString();
}
