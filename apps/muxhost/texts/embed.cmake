# Writes OUTPUT, the source of BuiltInLanguages(), from the JSON files of FOLDER.
file(GLOB files ${FOLDER}/*.json)
set(entries "")
foreach(file ${files})
  get_filename_component(code "${file}" NAME_WE)
  file(READ "${file}" json)
  string(APPEND entries "    {\"${code}\", R\"json(${json})json\"},\n")
endforeach()
file(WRITE "${OUTPUT}" "#include \"muxhost/texts/built_in_languages.h\"

namespace quorvel::muxhost {

std::span<const BuiltInLanguage> BuiltInLanguages() {
  static constexpr BuiltInLanguage kLanguages[] = {
${entries}  };
  return kLanguages;
}

}  // namespace quorvel::muxhost
")
