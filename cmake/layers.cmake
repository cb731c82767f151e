# The engine's folders, lowest first. A folder builds into its own library
# that links only the one below it, and its code includes only folders at or
# below its own: the table never reaches up into what is built on it.
set(DICEMILL_LAYERS dice engine config autoplay stats store script sim cli)
