#include "surface/system_reason.h"

#include <array>
#include <cerrno>
#include <new>
#include <stdexcept>
#include <system_error>

#include "surface/failure.h"

namespace orvane {
namespace {

struct Reason {
  int error;
  std::string_view text;
};

constexpr std::array reasons{
    Reason{ENOENT, "ce fichier ou ce dossier n'existe pas"},
    Reason{EACCES, "accès refusé"},
    Reason{EPERM, "opération non permise"},
    Reason{EEXIST, "ce nom est déjà pris"},
    Reason{EISDIR, "c'est un dossier"},
    Reason{ENOTDIR, "un élément du chemin n'est pas un dossier"},
    Reason{ENOTEMPTY, "ce dossier n'est pas vide"},
    Reason{ENAMETOOLONG, "ce nom est trop long"},
    Reason{EINVAL, "ce nom n'est pas accepté ici"},
    Reason{ELOOP, "trop de liens se suivent"},
    Reason{ENOSPC, "il n'y a plus de place sur le disque"},
    Reason{EDQUOT, "le quota de disque est épuisé"},
    Reason{EFBIG, "le fichier est trop grand"},
    Reason{EROFS, "le disque est en lecture seule"},
    Reason{EBUSY, "le fichier est occupé"},
    Reason{EIO, "le disque ne répond pas correctement"},
    Reason{EMFILE, "trop de fichiers sont ouverts"},
    Reason{ENFILE, "trop de fichiers sont ouverts"},
    Reason{ENOMEM, "il n'y a plus assez de mémoire"},
    Reason{EAGAIN, "le fichier est occupé"},
    Reason{ETXTBSY, "le fichier est occupé"},
    Reason{EINTR, "l'opération a été interrompue"},
    Reason{ECANCELED, "l'opération a été interrompue"},
    Reason{EXDEV, "les deux noms ne sont pas sur le même disque"},
    Reason{EMLINK, "il y a trop de liens"},
    Reason{EILSEQ, "ce nom n'est pas accepté ici"},
    Reason{EOVERFLOW, "le fichier est trop grand"},
    Reason{ENXIO, "l'appareil n'est pas là"},
    Reason{ENODEV, "l'appareil n'est pas là"},
    Reason{ENOMEDIUM, "il n'y a pas de disque dans le lecteur"},
    Reason{EREMOTEIO, "le disque ne répond pas correctement"},
    Reason{EUCLEAN, "le disque est endommagé"},
    Reason{EBADMSG, "le disque est endommagé"},
    Reason{ENOLCK, "il n'y a plus de verrou disponible"},
    Reason{EDEADLK, "deux programmes s'attendent l'un l'autre"},
    Reason{ENOSYS, "ce disque ne sait pas le faire"},
    Reason{EOPNOTSUPP, "ce disque ne sait pas le faire"},
    Reason{ENOTTY, "ce disque ne sait pas le faire"},
    Reason{ESPIPE, "ce n'est pas un fichier ordinaire"},
    Reason{EPIPE, "le lecteur à l'autre bout s'est arrêté"},
    Reason{EBADF, "le fichier n'est pas ouvert"},
    Reason{ENOKEY, "la clé du disque chiffré manque"},
    Reason{EKEYEXPIRED, "la clé du disque chiffré n'est plus valable"},
    Reason{EKEYREJECTED, "la clé du disque chiffré est refusée"},
    Reason{ESTALE, "le dossier partagé a changé entre-temps"},
    Reason{ETIMEDOUT, "le réseau ne répond pas"},
    Reason{ECONNREFUSED, "le réseau ne répond pas"},
    Reason{ECONNRESET, "le réseau ne répond pas"},
    Reason{ECONNABORTED, "le réseau ne répond pas"},
    Reason{ENOTCONN, "le réseau ne répond pas"},
    Reason{ESHUTDOWN, "le réseau ne répond pas"},
    Reason{EHOSTDOWN, "le réseau ne répond pas"},
    Reason{EHOSTUNREACH, "le réseau ne répond pas"},
    Reason{ENETDOWN, "le réseau ne répond pas"},
    Reason{ENETUNREACH, "le réseau ne répond pas"},
};

}  // namespace

std::string systemReason(int error) {
  for (const auto& reason : reasons)
    if (reason.error == error) return std::string(reason.text);
  return "erreur système n° " + std::to_string(error);
}

std::string sentenceOn(const std::exception& error) {
  if (dynamic_cast<const Failure*>(&error)) return error.what();
  if (dynamic_cast<const std::bad_alloc*>(&error) || dynamic_cast<const std::length_error*>(&error))
    return "Il n'y a plus assez de mémoire.";
  if (const auto* system = dynamic_cast<const std::system_error*>(&error))
    return "Erreur interne : " + systemReason(system->code().value()) + ".";
  return "Erreur interne.";
}

}  // namespace orvane
