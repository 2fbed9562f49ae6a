#!/bin/sh
# designer_opens_form.sh DESIGNER PLUGIN_FOLDER FORM
# Opens FORM in Qt Designer with the plugin folder on its path for a few
# seconds. Fails when Designer stops early, does not load the plugin, or
# says anything about the form beyond its usual offscreen remarks: without
# the plugin it warns about every widget of the form.
out=$(QT_QPA_PLATFORM=offscreen QT_PLUGIN_PATH="$2" QT_LOGGING_RULES="qt.core.library.debug=true" \
      timeout 12 "$1" "$3" 2>&1)
rc=$?
if [ "$rc" -ne 124 ]; then
    printf '%s\n' "$out"
    echo "designer stopped with exit code $rc"
    exit 1
fi
if ! printf '%s\n' "$out" | grep -q 'libkarvexdesignerplugin.so" loaded library'; then
    printf '%s\n' "$out"
    echo "designer did not load the plugin"
    exit 1
fi
rest=$(printf '%s\n' "$out" | grep -v -e '^qt\.core\.library:' -e 'propagateSizeHints' \
       -e 'QOpenGLWidget is not supported' -e 'XDG_RUNTIME_DIR' -e '^$')
if [ -n "$rest" ]; then
    printf '%s\n' "$rest"
    echo "designer complained"
    exit 1
fi
echo "designer opened the form with the plugin"
