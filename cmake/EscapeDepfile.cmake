# cmake -DFILE=... -P: qsb writes one path a line into its dependency file, but leaves blanks in the paths as they are.
# Without a backslash each would end the path, and the shader would be baked in every build.

file(READ "${FILE}" text)
string(REPLACE " " "\\ " text "${text}")
string(REPLACE "\\ \\\n\\ \\ " " \\\n  " text "${text}")  # what parts the lines
file(WRITE "${FILE}" "${text}")
