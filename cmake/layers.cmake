# The engine's folders, lowest first. A folder builds into its own library
# that links only the one below it, and its code includes only folders at or
# below its own: the table never reaches up into what is built on it.
set(DICEMILL_LAYERS dice engine config autoplay stats store script sim)
# The front ends stand side by side on top: each may use every layer, but
# never another front end (the desktop program and the Python module are no
# clients of the command line's code, nor the reverse).
set(DICEMILL_FRONT_ENDS cli ui python)
