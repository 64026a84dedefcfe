#include "screens/meals/frm_ajout_ticket.h"

#include "core/exceptions.h"
#include "pupils/eleve.h"
#include "workflows/vente_tickets.h"

namespace {

constexpr int kNombreMaximum = 999;

TTableChamps<TSaisieTicket> Table() {
  return {
      {{.Nom = u"cbTicketManquant"_s, .Libelle = u"Ticket manquant"_s, .Genre = TGenreChamp::Coche},
       Membre(&TSaisieTicket::Manquant)},
      {{.Nom = u"edNombre"_s,
        .Libelle = u"Nombre de tickets :"_s,
        .Genre = TGenreChamp::Entier,
        .Obligatoire = true,
        .Refus = u"Le nombre de tickets va de 1 à 999."_s},
       Membre(&TSaisieTicket::Nombre)},
      {{.Nom = u"dtDate"_s, .Libelle = u"Date d'achat :"_s, .Genre = TGenreChamp::Date, .Obligatoire = true},
       Membre(&TSaisieTicket::Date)},
      {{.Nom = u"edPrix"_s,
        .Libelle = u"Prix :"_s,
        .Genre = TGenreChamp::Montant,
        .Obligatoire = true,
        .Unite = u"€"_s},
       Membre(&TSaisieTicket::Prix)},
      {{.Nom = u"rbPaiement"_s,
        .Libelle = u"Paiement :"_s,
        .Genre = TGenreChamp::Choix,
        .Choix =
            [] {
              return QStringList{u"Virement"_s, u"Comptant"_s};
            }},
       Membre(&TSaisieTicket::Paiement)},
  };
}

}  // namespace

TFrmAjoutTicket::TFrmAjoutTicket(TContexteEcran& contexte, TEleve& eleve, Currency prix)
    : TFrmDialogueDe(u"Ajouter des tickets à "_s + eleve.NomComplet(), Table()), eleve_(eleve) {
  Saisi.Prix = prix;
  Saisi.Date = contexte.Controleur.Horloge().Aujourdhui();
  Montrer();
}

bool TFrmAjoutTicket::Controler() {
  const int nombre = Champs().Entier(Champs().Indice(u"edNombre"_s));
  const bool manquant = Champs().Entier(Champs().Indice(u"cbTicketManquant"_s)) != 0;
  if (!manquant && (nombre < 1 || nombre > kNombreMaximum))
    return Champs().Refuser(u"edNombre"_s, u"Le nombre de tickets va de 1 à 999."_s);
  return true;
}

void TFrmAjoutTicket::Enregistrer() {
  if (Saisi.Manquant)
    eleve_.AjouterCredit(Saisi.Prix, Saisi.Date);
  else
    eleve_.AcheterTickets(Saisi.Nombre, static_cast<TPaiementTicket>(Saisi.Paiement + 1), Saisi.Prix,
                          Saisi.Date);
}
