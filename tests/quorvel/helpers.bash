# What the transcripts use.
export LC_ALL=C.UTF-8

# poke FILE BLOCK.BYTE=VALUE...: puts bytes into the blocks of a plain image.
poke() {
  local file=$1 change at
  shift
  for change in "$@"; do
    at=$(((${change%%.*} - 1) * 16 + $(cut -d. -f2 <<<"${change%=*}")))
    poke_at "$file" $at "${change#*=}"
  done
}

# poke_at FILE OFFSET VALUE: puts a byte into a file.
poke_at() {
  printf "\\x$(printf %x "$3")" | dd of="$1" bs=1 seek="$2" conv=notrunc status=none
}

# bytes FILE OFFSET COUNT: prints bytes of a file.
bytes() {
  od -An -tu1 -j"$2" -N"$3" "$1" | tr -s ' '
}

# complete WORD...: what bash offers for the last word of a command line.
completions() {
  bash -c '. "$0"; COMP_WORDS=("$@") COMP_CWORD=$(($# - 1)); _quorvel; printf "%s\n" "${COMPREPLY[@]}"' \
    "$here/../../apps/quorvel/quorvel.bash" "$@" 2>/dev/null
}
