# Puts a seal behind the compiled help: the SHA-256 of all that stands before it, as 64 characters.
# The toolkit follows the offsets in such a file without asking where they lead, so the viewer
# registers none whose seal is broken.
#
#     cmake -DENTRADA=ayuda.rcc -DSALIDA=corvanda.HLP -P sellar.cmake
file(SHA256 ${ENTRADA} sello)
configure_file(${ENTRADA} ${SALIDA} COPYONLY)
file(APPEND ${SALIDA} ${sello})
