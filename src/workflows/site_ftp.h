#pragma once
#include <QByteArray>
#include <QString>
#include <memory>
#include <vector>

/// The FTP site on which the remote scanning points leave their files. Every failure raises Exception with a
/// French reason, in which the password never stands.
class TSiteFtp {
 public:
  TSiteFtp();
  ~TSiteFtp();
  TSiteFtp(const TSiteFtp&) = delete;
  TSiteFtp& operator=(const TSiteFtp&) = delete;

  /// `hote` is a name or an address, perhaps with ":port", perhaps with "/dossier".
  void Connecter(const QString& hote, const QString& utilisateur, const QString& motDePasse);
  bool Connecte() const { return connecte_; }
  void Deconnecter();

  /// The names "*.txt" of the folder, in the order of the site. What is no plain name (a path, a hidden file,
  /// bytes that are no text) is not among them.
  std::vector<QString> Lister();
  /// How many "*.txt" the last listing has left out.
  int NombreEcartes() const { return ecartes_; }
  /// Into a local file, which is replaced only by a whole one. False when the file is no longer there.
  bool Telecharger(const QString& nom, const QString& local);
  /// Opens a connection that was lost again.
  void Effacer(const QString& nom);

 private:
  struct TCurl;
  std::unique_ptr<TCurl> curl_;
  bool connecte_ = false;
  int ecartes_ = 0;
};
