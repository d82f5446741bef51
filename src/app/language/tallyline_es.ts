<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Tallyline</name>
    <message>
        <source>tallyhelp.hlp</source>
        <translation>tallyhelp_es.hlp</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>Open a data file</source>
        <translation>Abrir un archivo de datos</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Close all open files</source>
        <translation>Cerrar todos los archivos abiertos</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>&amp;Guardar como...</translation>
    </message>
    <message>
        <source>Save readings as a data file</source>
        <translation>Guardar las lecturas como archivo de datos</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>Data&amp;Summary</source>
        <translation>Re&amp;sumen de datos</translation>
    </message>
    <message>
        <source>Print the summary of a file</source>
        <translation>Imprimir el resumen de un archivo</translation>
    </message>
    <message>
        <source>Power Summary</source>
        <translation>Resumen de potencia</translation>
    </message>
    <message>
        <source>Print the summary of the power plot</source>
        <translation>Imprimir el resumen de la curva de potencia</translation>
    </message>
    <message>
        <source>Data&amp;Table</source>
        <translation>&amp;Tabla de datos</translation>
    </message>
    <message>
        <source>Print the readings of a file</source>
        <translation>Imprimir las lecturas de un archivo</translation>
    </message>
    <message>
        <source>Power Table</source>
        <translation>Tabla de potencia</translation>
    </message>
    <message>
        <source>Print the values of the power plot</source>
        <translation>Imprimir los valores de la curva de potencia</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Show a chart file (.chd)</source>
        <translation>Mostrar un archivo de gráfico (.chd)</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportar</translation>
    </message>
    <message>
        <source>Metering Data Report</source>
        <translation>Informe de medición</translation>
    </message>
    <message>
        <source>Write the hourly metering report</source>
        <translation>Escribir el informe de medición por horas</translation>
    </message>
    <message>
        <source>Data: Table</source>
        <translation>Datos: tabla</translation>
    </message>
    <message>
        <source>Write the readings shown for a spreadsheet</source>
        <translation>Escribir las lecturas mostradas para una hoja de cálculo</translation>
    </message>
    <message>
        <source>Data: 1 Rdg per Line</source>
        <translation>Datos: 1 lectura por línea</translation>
    </message>
    <message>
        <source>Write the table with one interval a line</source>
        <translation>Escribir la tabla con un intervalo por línea</translation>
    </message>
    <message>
        <source>Open this file again</source>
        <translation>Abrir este archivo de nuevo</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Terminar el programa</translation>
    </message>
    <message>
        <source>Load Survey</source>
        <translation>Sondeo de carga</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Abrir archivo</translation>
    </message>
    <message>
        <source>Peaks of a station and its feeders</source>
        <translation>Puntas de una estación y de sus alimentadores</translation>
    </message>
    <message>
        <source>E&amp;dit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>&amp;Notas</translation>
    </message>
    <message>
        <source>Edit the notes of a file</source>
        <translation>Modificar las notas de un archivo</translation>
    </message>
    <message>
        <source>&amp;Force Zoomed Readings</source>
        <translation>&amp;Forzar las lecturas del zoom</translation>
    </message>
    <message>
        <source>Replace the readings of the displayed range by one value</source>
        <translation>Sustituir las lecturas del tramo mostrado por un valor</translation>
    </message>
    <message>
        <source>Data &amp;View</source>
        <translation>&amp;Ver datos</translation>
    </message>
    <message>
        <source>&amp;Plot</source>
        <translation>&amp;Curva</translation>
    </message>
    <message>
        <source>Plot all readings of the open files</source>
        <translation>Trazar todas las lecturas de los archivos abiertos</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>&amp;Tabla</translation>
    </message>
    <message>
        <source>Show the readings of a file</source>
        <translation>Mostrar las lecturas de un archivo</translation>
    </message>
    <message>
        <source>&amp;Refresh Graph</source>
        <translation>Redi&amp;bujar la curva</translation>
    </message>
    <message>
        <source>Draw the displayed range again</source>
        <translation>Dibujar de nuevo el tramo mostrado</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>&amp;Resumen</translation>
    </message>
    <message>
        <source>Show the summary of a file</source>
        <translation>Mostrar el resumen de un archivo</translation>
    </message>
    <message>
        <source>Power View</source>
        <translation>Vista de potencia</translation>
    </message>
    <message>
        <source>Power Plot</source>
        <translation>Curva de potencia</translation>
    </message>
    <message>
        <source>Plot kilowatts and work out the energy</source>
        <translation>Trazar los kilovatios y calcular la energía</translation>
    </message>
    <message>
        <source>Show the values of the power plot</source>
        <translation>Mostrar los valores de la curva de potencia</translation>
    </message>
    <message>
        <source>Show the summary of the power plot</source>
        <translation>Mostrar el resumen de la curva de potencia</translation>
    </message>
    <message>
        <source>Load Stud&amp;y</source>
        <translation>Estudio &amp;de carga</translation>
    </message>
    <message>
        <source>Demand, duration, phases and capacity of the open files</source>
        <translation>Demanda, duración, fases y capacidad de los archivos abiertos</translation>
    </message>
    <message>
        <source>&amp;Zoom</source>
        <translation>&amp;Zoom</translation>
    </message>
    <message>
        <source>Narrow the displayed range to the marked span</source>
        <translation>Reducir el tramo mostrado a la parte marcada</translation>
    </message>
    <message>
        <source>&amp;Instrument</source>
        <translation>&amp;Instrumento</translation>
    </message>
    <message>
        <source>&amp;DownLoad</source>
        <translation>&amp;Descargar</translation>
    </message>
    <message>
        <source>Fetch the recording of an instrument</source>
        <translation>Traer el registro de un instrumento</translation>
    </message>
    <message>
        <source>&amp;Initialize</source>
        <translation>&amp;Inicializar</translation>
    </message>
    <message>
        <source>Set an instrument up for a new recording</source>
        <translation>Preparar un instrumento para un nuevo registro</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>&amp;Recuperar</translation>
    </message>
    <message>
        <source>Fetch a recording after a battery failure</source>
        <translation>Traer un registro tras un fallo de batería</translation>
    </message>
    <message>
        <source>&amp;Status Check</source>
        <translation>&amp;Comprobar estado</translation>
    </message>
    <message>
        <source>Ask an instrument how it is</source>
        <translation>Preguntar su estado a un instrumento</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opciones</translation>
    </message>
    <message>
        <source>Special Test</source>
        <translation>Prueba especial</translation>
    </message>
    <message>
        <source>Show the program's state, for support</source>
        <translation>Mostrar el estado del programa, para el soporte</translation>
    </message>
    <message>
        <source>&amp;Default Dir</source>
        <translation>Carpeta &amp;predeterminada</translation>
    </message>
    <message>
        <source>Choose where file dialogs start</source>
        <translation>Elegir dónde empiezan los diálogos de archivos</translation>
    </message>
    <message>
        <source>&amp;Com Port Selection</source>
        <translation>Elegir puerto &amp;COM</translation>
    </message>
    <message>
        <source>Choose the serial port</source>
        <translation>Elegir el puerto serie</translation>
    </message>
    <message>
        <source>&amp;Instrument Selection</source>
        <translation>Elegir &amp;instrumento</translation>
    </message>
    <message>
        <source>Choose the instrument type</source>
        <translation>Elegir el tipo de instrumento</translation>
    </message>
    <message>
        <source>&amp;User Name</source>
        <translation>Nombre de &amp;usuario</translation>
    </message>
    <message>
        <source>The name that reports carry</source>
        <translation>El nombre que llevan los informes</translation>
    </message>
    <message>
        <source>&amp;Scale</source>
        <translation>&amp;Escala</translation>
    </message>
    <message>
        <source>Set the lowest value of the y axis for one plot</source>
        <translation>Fijar el valor mínimo del eje y para un trazado</translation>
    </message>
    <message>
        <source>&amp;Annotate</source>
        <translation>&amp;Anotar</translation>
    </message>
    <message>
        <source>Add &amp;Note</source>
        <translation>Añadir &amp;nota</translation>
    </message>
    <message>
        <source>Place a text on the chart</source>
        <translation>Poner un texto en el gráfico</translation>
    </message>
    <message>
        <source>&amp;Clear Notes</source>
        <translation>&amp;Borrar notas</translation>
    </message>
    <message>
        <source>Take all texts off the chart</source>
        <translation>Quitar todos los textos del gráfico</translation>
    </message>
    <message>
        <source>&amp;Power Factor</source>
        <translation>&amp;Factor de potencia</translation>
    </message>
    <message>
        <source>The power factor of power views</source>
        <translation>El factor de potencia de las vistas de potencia</translation>
    </message>
    <message>
        <source>&amp;One-page Plot</source>
        <translation>Curva en una pá&amp;gina</translation>
    </message>
    <message>
        <source>Plot everything for one printed page</source>
        <translation>Trazar todo para una página impresa</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>Idio&amp;ma</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;Sistema</translation>
    </message>
    <message>
        <source>The language of the computer</source>
        <translation>El idioma del ordenador</translation>
    </message>
    <message>
        <source>The window speaks the chosen language when Tallyline is started the next time.</source>
        <translation>La ventana hablará el idioma elegido la próxima vez que se inicie Tallyline.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Open the help</source>
        <translation>Abrir la ayuda</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Acerca de</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>Acerca de este programa</translation>
    </message>
    <message>
        <source>No recording is open</source>
        <translation>No hay ningún registro abierto</translation>
    </message>
    <message>
        <source>Open a data file...</source>
        <translation>Abrir un archivo de datos...</translation>
    </message>
    <message>
        <source>Or drop up to three files on this window.</source>
        <translation>O suelte hasta tres archivos en esta ventana.</translation>
    </message>
    <message>
        <source>Download from an instrument</source>
        <translation>Descargar de un instrumento</translation>
    </message>
    <message>
        <source>Fetches a recording over the serial cable.</source>
        <translation>Trae un registro por el cable serie.</translation>
    </message>
    <message>
        <source>Open a sample recording</source>
        <translation>Abrir un registro de ejemplo</translation>
    </message>
    <message>
        <source>Four weeks of a feeder, to try things out.</source>
        <translation>Cuatro semanas de un alimentador, para probar.</translation>
    </message>
    <message>
        <source>Read the help</source>
        <translation>Leer la ayuda</translation>
    </message>
    <message>
        <source>F1 opens it; in an open menu, at the page of that menu.</source>
        <translation>F1 la abre; en un menú abierto, en la página de ese menú.</translation>
    </message>
    <message>
        <source>Notices</source>
        <translation>Avisos</translation>
    </message>
    <message>
        <source>Dismiss this notice</source>
        <translation>Cerrar este aviso</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Observación</translation>
    </message>
    <message>
        <source>Time under the pointer</source>
        <translation>Hora bajo el puntero</translation>
    </message>
    <message>
        <source>Value under the pointer</source>
        <translation>Valor bajo el puntero</translation>
    </message>
    <message>
        <source>What is shown is no longer current.</source>
        <translation>Lo que se muestra ya no está al día.</translation>
    </message>
    <message>
        <source>readings %1 to %2 of %3</source>
        <translation>lecturas %1 a %2 de %3</translation>
    </message>
    <message>
        <source>table of %1</source>
        <translation>tabla de %1</translation>
    </message>
    <message>
        <source>summary of %1</source>
        <translation>resumen de %1</translation>
    </message>
    <message>
        <source>Displaying %1</source>
        <translation>Se muestra: %1</translation>
    </message>
    <message>
        <source>Displaying table of %1</source>
        <translation>Se muestra: tabla de %1</translation>
    </message>
    <message>
        <source>Displaying summary of %1</source>
        <translation>Se muestra: resumen de %1</translation>
    </message>
    <message>
        <source>Displaying load study of %1</source>
        <translation>Se muestra: estudio de carga de %1</translation>
    </message>
    <message>
        <source>power table</source>
        <translation>tabla de potencia</translation>
    </message>
    <message>
        <source>power summary</source>
        <translation>resumen de potencia</translation>
    </message>
    <message>
        <source>a reception that is not saved</source>
        <translation>una recepción sin guardar</translation>
    </message>
    <message>
        <source>The default directory %1 is not there. File dialogs start in the current one; choose another under Options &gt; Default Dir.</source>
        <translation>La carpeta predeterminada %1 no existe. Los diálogos de archivos empiezan en la actual; elija otra en Opciones &gt; Carpeta predeterminada.</translation>
    </message>
    <message>
        <source>%1: %2 forced reading(s), not saved yet.</source>
        <translation>%1: %2 lectura(s) forzada(s), aún sin guardar.</translation>
    </message>
    <message>
        <source>%1: %2 forced reading, not saved yet.</source>
        <translation>%1: %2 lectura forzada, aún sin guardar.</translation>
    </message>
    <message>
        <source>%1: %2 forced readings, not saved yet.</source>
        <translation>%1: %2 lecturas forzadas, aún sin guardar.</translation>
    </message>
    <message>
        <source>%1: %2 reading(s) taken back, not saved yet.</source>
        <translation>%1: %2 lectura(s) restablecida(s), aún sin guardar.</translation>
    </message>
    <message>
        <source>%1: %2 reading taken back, not saved yet.</source>
        <translation>%1: %2 lectura restablecida, aún sin guardar.</translation>
    </message>
    <message>
        <source>%1: %2 readings taken back, not saved yet.</source>
        <translation>%1: %2 lecturas restablecidas, aún sin guardar.</translation>
    </message>
    <message>
        <source>Undo (Ctrl+Z)</source>
        <translation>Deshacer (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Guardar como...</translation>
    </message>
    <message>
        <source>Forced readings of these files were not saved:</source>
        <translation>No se guardaron las lecturas forzadas de estos archivos:</translation>
    </message>
    <message>
        <source>Close without saving them?</source>
        <translation>¿Cerrar sin guardarlas?</translation>
    </message>
    <message>
        <source>Drag the note to its place; double-click to edit it; Delete removes it.</source>
        <translation>Arrastre la nota a su sitio; un doble clic la modifica, Supr la quita.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Validate</source>
        <translation>Validar</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Give this reception up? It cannot be shown or saved then.</source>
        <translation>¿Descartar esta recepción? Ya no se podrá mostrar ni guardar.</translation>
    </message>
    <message>
        <source>The notes of the file could not be read.</source>
        <translation>No se pudieron leer las notas del archivo.</translation>
    </message>
    <message>
        <source>%1 item(s) of the file could not be read as numbers; each counts with its leading number, or 0</source>
        <translation>%1 elemento(s) del archivo no son números; cada uno cuenta con el número con que empieza, o 0</translation>
    </message>
    <message>
        <source>%1 item of the file could not be read as a number; it counts with its leading number, or 0</source>
        <translation>%1 elemento del archivo no es un número; cuenta con el número con que empieza, o 0</translation>
    </message>
    <message>
        <source>%1 items of the file could not be read as numbers; each counts with its leading number, or 0</source>
        <translation>%1 elementos del archivo no son números; cada uno cuenta con el número con que empieza, o 0</translation>
    </message>
    <message>
        <source>%1 is open and holds %2 readings.
Replace it by %3?</source>
        <translation>%1 está abierto y contiene %2 lecturas.
¿Sustituirlo por %3?</translation>
    </message>
    <message>
        <source>%1 of %2 readings (%3 to %4)</source>
        <translation>%1 de %2 lecturas (%3 a %4)</translation>
    </message>
    <message>
        <source>%1 readings</source>
        <translation>%1 lecturas</translation>
    </message>
    <message>
        <source>Save %1 of %2 readings (%3 to %4)</source>
        <translation>Guardar %1 de %2 lecturas (%3 a %4)</translation>
    </message>
    <message>
        <source>%1 holds %2 of %3 readings (%4 to %5) of %6.</source>
        <translation>%1 contiene %2 de %3 lecturas (%4 a %5) de %6.</translation>
    </message>
    <message>
        <source>%1 ends without its end mark; it may have been cut; %2 readings, the oldest number may be incomplete</source>
        <translation>%1 acaba sin marca de fin; puede estar cortado; %2 lecturas, el número más antiguo puede estar incompleto</translation>
    </message>
    <message>
        <source>%1: ends without its end mark; it may have been cut; %2 readings, the oldest number may be incomplete</source>
        <translation>%1: acaba sin marca de fin; puede estar cortado; %2 lecturas, el número más antiguo puede estar incompleto</translation>
    </message>
    <message>
        <source>Saved in %1: instrument %2, %3 readings.</source>
        <translation>Guardado en %1: instrumento %2, %3 lecturas.</translation>
    </message>
    <message>
        <source>Saved in %1: instrument %2, %3 reading.</source>
        <translation>Guardado en %1: instrumento %2, %3 lectura.</translation>
    </message>
    <message>
        <source>Saved in %1.</source>
        <translation>Guardado en %1.</translation>
    </message>
    <message>
        <source>Power factor taken as %1.</source>
        <translation>Factor de potencia tomado: %1.</translation>
    </message>
    <message>
        <source>Power factor taken as %1; the entry is not wholly a number.</source>
        <translation>Factor de potencia tomado: %1; la entrada no es del todo un número.</translation>
    </message>
    <message>
        <source>Line voltage taken as %1 volts; 0 counts as none.</source>
        <translation>Tensión tomada: %1 voltios; 0 cuenta como ninguna.</translation>
    </message>
    <message>
        <source>Line voltage taken as %1 volts; the entry must be volts, not KV</source>
        <translation>Tensión tomada: %1 voltios; la entrada va en voltios, no en kV</translation>
    </message>
    <message>
        <source>Line voltage taken as %1 volts; the entry must be volts, not KV (%2 for %3 KV)</source>
        <translation>Tensión tomada: %1 voltios; la entrada va en voltios, no en kV (%2 por %3 kV)</translation>
    </message>
    <message>
        <source>Line voltage taken as %1 volts; the entry is not wholly a number.</source>
        <translation>Tensión tomada: %1 voltios; la entrada no es del todo un número.</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Gráfico</translation>
    </message>
    <message>
        <source>One-page plot</source>
        <translation>Curva en una página</translation>
    </message>
    <message>
        <source>Text of the note</source>
        <translation>Texto de la nota</translation>
    </message>
    <message>
        <source>Enter keeps the text, Shift+Enter breaks the line, Escape leaves it as it was</source>
        <translation>Intro guarda el texto, Mayús+Intro parte la línea, Esc lo deja como estaba</translation>
    </message>
    <message>
        <source>Enter note here</source>
        <translation>Enter note here</translation>
    </message>
    <message>
        <source>Open chart</source>
        <translation>Abrir gráfico</translation>
    </message>
    <message>
        <source>Open a chart file</source>
        <translation>Abrir un archivo de gráfico</translation>
    </message>
    <message>
        <source>Save chart</source>
        <translation>Guardar gráfico</translation>
    </message>
    <message>
        <source>Save the chart as a chart file</source>
        <translation>Guardar el gráfico como archivo de gráfico</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Save the chart as PNG, PDF or SVG</source>
        <translation>Guardar el gráfico como PNG, PDF o SVG</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy the chart as a picture</source>
        <translation>Copiar el gráfico como imagen</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Print the chart on one page</source>
        <translation>Imprimir el gráfico en una página</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Show how the chart will be printed</source>
        <translation>Mostrar cómo se imprimirá el gráfico</translation>
    </message>
    <message>
        <source>Add note</source>
        <translation>Añadir nota</translation>
    </message>
    <message>
        <source>Put a text on the chart</source>
        <translation>Poner un texto en el gráfico</translation>
    </message>
    <message>
        <source>Clear notes</source>
        <translation>Borrar notas</translation>
    </message>
    <message>
        <source>Enlarge the picture</source>
        <translation>Ampliar la imagen</translation>
    </message>
    <message>
        <source>Reduce the picture</source>
        <translation>Reducir la imagen</translation>
    </message>
    <message>
        <source>Whole</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>Show the whole plot</source>
        <translation>Mostrar toda la curva</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>Texto que se busca</translation>
    </message>
    <message>
        <source>Find previous</source>
        <translation>Buscar anterior</translation>
    </message>
    <message>
        <source>Find next</source>
        <translation>Buscar siguiente</translation>
    </message>
    <message>
        <source>Close the find bar</source>
        <translation>Cerrar la barra de búsqueda</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>No encontrado</translation>
    </message>
    <message>
        <source>Forced readings</source>
        <translation>Lecturas forzadas</translation>
    </message>
    <message>
        <source>Print preview</source>
        <translation>Vista previa de impresión</translation>
    </message>
    <message>
        <source>The pages could not be drawn</source>
        <translation>No se pudieron dibujar las páginas</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; failed</source>
        <translation>La impresora «%1» falló</translation>
    </message>
    <message>
        <source>There is no printer</source>
        <translation>No hay impresora</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has gone</source>
        <translation>La impresora «%1» ya no está</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Print this text</source>
        <translation>Imprimir este texto</translation>
    </message>
    <message>
        <source>See the pages before they are printed</source>
        <translation>Ver las páginas antes de imprimirlas</translation>
    </message>
    <message>
        <source>Copy the selection, or everything</source>
        <translation>Copiar la selección, o todo</translation>
    </message>
    <message>
        <source>Search this text (Ctrl+F)</source>
        <translation>Buscar en este texto (Ctrl+F)</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Mostrar todo</translation>
    </message>
    <message>
        <source>Leave the zoom and show every reading</source>
        <translation>Salir del zoom y mostrar todas las lecturas</translation>
    </message>
    <message>
        <source>Study</source>
        <translation>Estudio</translation>
    </message>
    <message>
        <source>The chart file cannot be read: it is too large</source>
        <translation>No se puede leer el archivo de gráfico: es demasiado grande</translation>
    </message>
    <message>
        <source>The chart file cannot be read: it is damaged or no chart file</source>
        <translation>No se puede leer el archivo de gráfico: está dañado o no lo es</translation>
    </message>
    <message>
        <source>The chart file cannot be read: %1</source>
        <translation>No se puede leer el archivo de gráfico: %1</translation>
    </message>
    <message>
        <source>It is no chart file of this program</source>
        <translation>No es un archivo de gráfico de este programa</translation>
    </message>
    <message>
        <source>It was written by a newer version of this program</source>
        <translation>Lo escribió una versión más reciente de este programa</translation>
    </message>
    <message>
        <source>A note stands outside the chart</source>
        <translation>Una nota está fuera del gráfico</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>falta «%1»</translation>
    </message>
    <message>
        <source>%1 is no object</source>
        <translation>%1 no es un objeto</translation>
    </message>
    <message>
        <source>%1 holds &quot;%2&quot;, which is unknown</source>
        <translation>%1 contiene «%2», que no se conoce</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no list of at most %2</source>
        <translation>«%1» no es una lista de como máximo %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no text of a usual length</source>
        <translation>«%1» no es un texto de longitud usual</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number</source>
        <translation>«%1» no es un número entero</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is out of range</source>
        <translation>«%1» está fuera de límites</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds what is no number</source>
        <translation>«%1» contiene algo que no es un número</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a number out of range</source>
        <translation>«%1» contiene un número fuera de límites</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds what is no pair</source>
        <translation>«%1» contiene algo que no es un par</translation>
    </message>
    <message>
        <source>&quot;%1&quot; are not nine</source>
        <translation>«%1» no son nueve</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds what is no label</source>
        <translation>«%1» contiene algo que no es un rótulo</translation>
    </message>
    <message>
        <source>A picture is saved as .png, .pdf or .svg: %1</source>
        <translation>Una imagen se guarda como .png, .pdf o .svg: %1</translation>
    </message>
    <message>
        <source>A picture is between %1 and %2 pixels wide and high, and needs memory for them</source>
        <translation>Una imagen mide entre %1 y %2 píxeles de ancho y de alto y necesita memoria para ellos</translation>
    </message>
    <message>
        <source>About Tallyline</source>
        <translation>Acerca de Tallyline</translation>
    </message>
    <message>
        <source>Reads, keeps and plots the recordings of portable
electrical load recorders.</source>
        <translation>Lee, guarda y traza los registros de registradores
portátiles de carga eléctrica.</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licencia</translation>
    </message>
    <message>
        <source>GNU GPL 3 or later</source>
        <translation>GNU GPL 3 o posterior</translation>
    </message>
    <message>
        <source>No Selection Made
Click on filename</source>
        <translation>No hay selección
Haga clic en un nombre de archivo</translation>
    </message>
    <message>
        <source>Select Data</source>
        <translation>Elegir datos</translation>
    </message>
    <message>
        <source>Open files</source>
        <translation>Archivos abiertos</translation>
    </message>
    <message>
        <source>Scroll the file paths</source>
        <translation>Desplazar las rutas</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Show scroll data</source>
        <translation>Mostrar detalles</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>%1 to %2 %3 readings, range %4</source>
        <translation>%1 a %2 %3 lecturas, alcance %4</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>Lugar: %1</translation>
    </message>
    <message>
        <source>Circuit: %1</source>
        <translation>Circuito: %1</translation>
    </message>
    <message>
        <source>Name: %1</source>
        <translation>Nombre: %1</translation>
    </message>
    <message>
        <source>Other: %1</source>
        <translation>Otros: %1</translation>
    </message>
    <message>
        <source>Note Editor</source>
        <translation>Editor de notas</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Lugar:</translation>
    </message>
    <message>
        <source>Circuit:</source>
        <translation>Circuito:</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Other:</source>
        <translation>Otros:</translation>
    </message>
    <message>
        <source>A comma ends a note when the file is opened again: what follows it moves into the next field.</source>
        <translation>Una coma termina una nota cuando se vuelve a abrir el archivo: lo que la sigue pasa al campo siguiente.</translation>
    </message>
    <message>
        <source>save</source>
        <translation>guardar</translation>
    </message>
    <message>
        <source>cancel</source>
        <translation>cancelar</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Usar esta carpeta</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>File dialogs start in this folder:</source>
        <translation>Los diálogos de archivos empiezan en esta carpeta:</translation>
    </message>
    <message>
        <source>To force one or all of the readings in the current zoomed range to a particular value, enter the desired new value in the box below, select the number of readings to change and then press OK.</source>
        <translation>Para forzar una o todas las lecturas del tramo ampliado a un valor determinado, escriba abajo el nuevo valor, elija el número de lecturas que se cambian y pulse Aceptar.</translation>
    </message>
    <message>
        <source>All Readings (%1)</source>
        <translation>Todas las lecturas (%1)</translation>
    </message>
    <message>
        <source>Leftmost Reading</source>
        <translation>Lectura de la izquierda</translation>
    </message>
    <message>
        <source>Rightmost Reading</source>
        <translation>Lectura de la derecha</translation>
    </message>
    <message>
        <source>Force Readings</source>
        <translation>Forzar lecturas</translation>
    </message>
    <message>
        <source>Desired value:</source>
        <translation>Valor deseado:</translation>
    </message>
    <message>
        <source>No. of readings to change:</source>
        <translation>Número de lecturas que se cambian:</translation>
    </message>
    <message>
        <source>The help file is missing:</source>
        <translation>Falta el archivo de ayuda:</translation>
    </message>
    <message>
        <source>The help file is damaged:</source>
        <translation>El archivo de ayuda está dañado:</translation>
    </message>
    <message>
        <source>The help file cannot be opened:</source>
        <translation>No se puede abrir el archivo de ayuda:</translation>
    </message>
    <message>
        <source>Tallyline Help</source>
        <translation>Ayuda de Tallyline</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Contenido</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Búsqueda</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>data files (*.dat)</source>
        <translation>archivos de datos (*.dat)</translation>
    </message>
    <message>
        <source>Data Displayed</source>
        <translation>Datos mostrados</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Mínimo</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Máximo</translation>
    </message>
    <message>
        <source>Error - No file available. Need to open a file.</source>
        <translation>Error - No hay ningún archivo. Hay que abrir un archivo.</translation>
    </message>
    <message>
        <source>Error - No file available. Need to open a file</source>
        <translation>Error - No hay ningún archivo. Hay que abrir un archivo</translation>
    </message>
    <message>
        <source>File not found or disk error</source>
        <translation>Archivo no encontrado o error de disco</translation>
    </message>
    <message>
        <source>Enter user name below</source>
        <translation>Escriba abajo el nombre de usuario</translation>
    </message>
    <message>
        <source>Enter line voltage for power calculation
input must be volts, not 'KV'</source>
        <translation>Escriba la tensión de línea para calcular la potencia
en voltios, no en «kV»</translation>
    </message>
    <message>
        <source>Enter Power Factor to be used
must be 1 or less</source>
        <translation>Escriba el factor de potencia
1 o menos</translation>
    </message>
    <message>
        <source>Enter min value for Y Scale</source>
        <translation>Escriba el valor mínimo de la escala y</translation>
    </message>
    <message>
        <source>print on one page</source>
        <translation>print on one page</translation>
    </message>
    <message>
        <source>ONE PAGE PLOT IS ENABLED
Click the Print Icon to print this report</source>
        <translation>LA CURVA EN UNA PÁGINA ESTÁ ACTIVA
Haga clic en el icono de impresora para imprimir</translation>
    </message>
    <message>
        <source>Enter Recorder ID
No More Than 14 Characters

Power Factor In Use %1; Use OPTIONS to Alter</source>
        <translation>Escriba el identificador del registrador
No más de 14 caracteres

Factor de potencia en uso: %1; se cambia en OPCIONES</translation>
    </message>
    <message>
        <source>Software error in mnuItemNotes_Click:
A case that couldn't happen, happened.</source>
        <translation>Error de software en mnuItemNotes_Click:
Ocurrió un caso que no podía ocurrir.</translation>
    </message>
    <message>
        <source>Software error in ForceRdgs - 'ginx' is out of range</source>
        <translation>Error de software en ForceRdgs - «ginx» está fuera de límites</translation>
    </message>
    <message>
        <source>Error - New reading is outside the allowable range.
- Must be between 0 and %1</source>
        <translation>Error - La nueva lectura está fuera del margen permitido.
- Debe estar entre 0 y %1</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Desbordamiento</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>Índice fuera de límites</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>División por cero</translation>
    </message>
    <message>
        <source>Type mismatch</source>
        <translation>Tipo incompatible</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Archivo no encontrado</translation>
    </message>
    <message>
        <source>Device I/O error</source>
        <translation>Error de entrada o salida del dispositivo</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disco lleno</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permiso denegado</translation>
    </message>
    <message>
        <source>Path/File access error</source>
        <translation>Error de acceso a la ruta o al archivo</translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation>Ruta no encontrada</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Memoria insuficiente</translation>
    </message>
    <message>
        <source>Invalid property value</source>
        <translation>Valor no válido</translation>
    </message>
    <message>
        <source>Port already open</source>
        <translation>Puerto ya abierto</translation>
    </message>
    <message>
        <source>Invalid port number</source>
        <translation>Número de puerto no válido</translation>
    </message>
    <message>
        <source>Check its name and folder; it may have been moved or renamed.</source>
        <translation>Compruebe su nombre y su carpeta; puede haberse movido o cambiado de nombre.</translation>
    </message>
    <message>
        <source>Disk error: it could not be read or written to its end. Try again, or use another disk.</source>
        <translation>Error de disco: no se pudo leer o escribir hasta el final. Inténtelo de nuevo o use otro disco.</translation>
    </message>
    <message>
        <source>Make room on the disk, or choose a folder on another one.</source>
        <translation>Haga sitio en el disco o elija una carpeta en otro.</translation>
    </message>
    <message>
        <source>You have no right to it. Ask for the right, or choose another folder.</source>
        <translation>No tiene permiso. Pida el permiso o elija otra carpeta.</translation>
    </message>
    <message>
        <source>It is a folder or a device, or cannot be opened. Choose a file.</source>
        <translation>Es una carpeta o un dispositivo, o no se puede abrir. Elija un archivo.</translation>
    </message>
    <message>
        <source>Its folder is not there. Make it, or choose another one.</source>
        <translation>Su carpeta no existe. Créela o elija otra.</translation>
    </message>
    <message>
        <source>Error number %1: %2</source>
        <translation>Error número %1: %2</translation>
    </message>
    <message>
        <source>It has no header of an instrument.</source>
        <translation>No tiene cabecera de un instrumento.</translation>
    </message>
    <message>
        <source>The mode letter in its header is none of a to l.</source>
        <translation>La letra de modo de su cabecera no está entre a y l.</translation>
    </message>
    <message>
        <source>The time in its header is no date and time.</source>
        <translation>La hora de su cabecera no es una fecha con hora.</translation>
    </message>
    <message>
        <source>There are no readings behind its header.</source>
        <translation>No hay lecturas tras su cabecera.</translation>
    </message>
    <message>
        <source>One of its readings is larger than a recording can hold.</source>
        <translation>Una de sus lecturas es mayor de lo que cabe en un registro.</translation>
    </message>
    <message>
        <source>Its readings run into each other and cannot be told apart.</source>
        <translation>Sus lecturas se juntan y no se pueden distinguir.</translation>
    </message>
    <message>
        <source>It is far longer than a recording and has no end mark.</source>
        <translation>Es mucho más largo que un registro y no tiene marca de fin.</translation>
    </message>
    <message>
        <source>The file was not changed. Try another copy of it, or download again.</source>
        <translation>El archivo no se cambió. Pruebe otra copia o descargue de nuevo.</translation>
    </message>
    <message>
        <source>Mode mixing not allowed</source>
        <translation>No se pueden mezclar modos</translation>
    </message>
    <message>
        <source>Not Voltage file</source>
        <translation>No es un archivo de tensión</translation>
    </message>
    <message>
        <source>Three files are open already. Use Close first.</source>
        <translation>Ya hay tres archivos abiertos. Cierre primero.</translation>
    </message>
    <message>
        <source>It is of mode %1 (%2 min, %3), what is open of mode %4 (%5 min, %6). Open files of one mode together; use Close before files of another.</source>
        <translation>Es de modo %1 (%2 min, %3), lo abierto de modo %4 (%5 min, %6). Abra juntos archivos de un mismo modo; cierre antes de abrir los de otro.</translation>
    </message>
    <message>
        <source>It is a recording of current. Choose a file of a voltage recorder.</source>
        <translation>Es un registro de corriente. Elija un archivo de un registrador de tensión.</translation>
    </message>
    <message>
        <source>Error in processing file</source>
        <translation>Error al procesar el archivo</translation>
    </message>
    <message>
        <source>Unknown File Error; Check</source>
        <translation>Error de archivo desconocido; compruebe</translation>
    </message>
    <message>
        <source>The files are not all of one unit</source>
        <translation>Los archivos no son todos de una unidad</translation>
    </message>
    <message>
        <source>The files have different intervals</source>
        <translation>Los archivos tienen intervalos distintos</translation>
    </message>
    <message>
        <source>The files start no whole number of intervals apart</source>
        <translation>Los archivos no empiezan separados por intervalos enteros</translation>
    </message>
    <message>
        <source>The files have no reading in common</source>
        <translation>Los archivos no tienen ninguna lectura en común</translation>
    </message>
    <message>
        <source>There is no complete reading</source>
        <translation>No hay ninguna lectura completa</translation>
    </message>
    <message>
        <source>It holds %1, %2 %3.</source>
        <translation>Contiene %1, %2 %3.</translation>
    </message>
    <message>
        <source>amps</source>
        <translation>amperios</translation>
    </message>
    <message>
        <source>volts</source>
        <translation>voltios</translation>
    </message>
    <message>
        <source>It runs from %1 to %2, the first from %3 to %4.</source>
        <translation>Va de %1 a %2, el primero de %3 a %4.</translation>
    </message>
    <message>
        <source>It starts at %1, the first at %2, and readings are %3 minutes apart.</source>
        <translation>Empieza a las %1, el primero a las %2, y las lecturas están a %3 minutos.</translation>
    </message>
    <message>
        <source>The zoomed range holds no reading of this file. Nothing was done.</source>
        <translation>El tramo ampliado no contiene ninguna lectura de este archivo. No se hizo nada.</translation>
    </message>
    <message>
        <source>The range is %1 to %2 of %3. Show all readings first, or choose another file.</source>
        <translation>El tramo va de %1 a %2 de %3. Muestre primero todas las lecturas o elija otro archivo.</translation>
    </message>
    <message>
        <source>Shorter: %1 (%2 of %3 readings)</source>
        <translation>Más corto: %1 (%2 de %3 lecturas)</translation>
    </message>
    <message>
        <source>Shorter: %1 (%2 of %3 readings).</source>
        <translation>Más corto: %1 (%2 de %3 lecturas).</translation>
    </message>
    <message>
        <source>Shorter: %1 (%2 of %3 readings), %4 (%5 of %6 readings)</source>
        <translation>Más cortos: %1 (%2 de %3 lecturas), %4 (%5 de %6 lecturas)</translation>
    </message>
    <message>
        <source>%1 starts %2 after %3;</source>
        <translation>%1 empieza %2 después de %3;</translation>
    </message>
    <message>
        <source>%1 starts %2 before %3;</source>
        <translation>%1 empieza %2 antes de %3;</translation>
    </message>
    <message>
        <source>readings are combined by number, not by time</source>
        <translation>las lecturas se combinan por número, no por hora</translation>
    </message>
    <message>
        <source>readings are combined by number, not by time.</source>
        <translation>las lecturas se combinan por número, no por hora.</translation>
    </message>
    <message>
        <source>%1 starts %2 after %3; readings are combined by number, not by time</source>
        <translation>%1 empieza %2 después de %3; las lecturas se combinan por número, no por hora</translation>
    </message>
    <message>
        <source>%1 starts %2 before %3; readings are combined by number, not by time</source>
        <translation>%1 empieza %2 antes de %3; las lecturas se combinan por número, no por hora</translation>
    </message>
    <message>
        <source>Different units: %1 is in %2, %3 in %4</source>
        <translation>Unidades distintas: %1 en %2, %3 en %4</translation>
    </message>
    <message>
        <source>Different units: %1 is in %2, %3 in %4.</source>
        <translation>Unidades distintas: %1 en %2, %3 en %4.</translation>
    </message>
    <message>
        <source>Power of %1 at %2 KV, power factor %3, %4 to %5: %6</source>
        <translation>Potencia de %1 a %2 kV, factor de potencia %3, de %4 a %5: %6</translation>
    </message>
    <message>
        <source>Files must all be amps for power to plot</source>
        <translation>Para trazar la potencia, todos los archivos deben ser de amperios</translation>
    </message>
    <message>
        <source>Files must be average mode for power to plot</source>
        <translation>Para trazar la potencia, los archivos deben ser de valores medios</translation>
    </message>
    <message>
        <source>only 15 min, avg mode allowed</source>
        <translation>solo 15 min, modo de media</translation>
    </message>
    <message>
        <source>The export would replace an open data file. Nothing was written.</source>
        <translation>La exportación sustituiría un archivo de datos abierto. No se escribió nada.</translation>
    </message>
    <message>
        <source>%1 saved OK</source>
        <translation>%1 guardado</translation>
    </message>
    <message>
        <source>Software Error #2 in Export.bas. Line in gTable$ too short.</source>
        <translation>Error de software n.º 2 en Export.bas. Línea de gTable$ demasiado corta.</translation>
    </message>
    <message>
        <source>NOT A VALID MODE
INTERVAL MUST BE 15 MINUTES</source>
        <translation>MODO NO VÁLIDO
EL INTERVALO DEBE SER DE 15 MINUTOS</translation>
    </message>
    <message>
        <source>The readings hold no whole hour after a midnight. No report was written.</source>
        <translation>Las lecturas no contienen ninguna hora entera tras una medianoche. No se escribió ningún informe.</translation>
    </message>
    <message>
        <source>The power factor in use is above 1; use OPTIONS to alter it. No report was written.</source>
        <translation>El factor de potencia en uso es mayor que 1; cámbielo en OPCIONES. No se escribió ningún informe.</translation>
    </message>
    <message>
        <source>A Recorder ID can hold no double quotes and no control characters. No report was written.</source>
        <translation>Un identificador no puede contener comillas ni caracteres de control. No se escribió ningún informe.</translation>
    </message>
    <message>
        <source>The journal of downloads cannot be written in %1: %2. A download that is not saved is lost when the program ends.</source>
        <translation>No se puede escribir el diario de descargas en %1: %2. Una descarga sin guardar se pierde cuando acaba el programa.</translation>
    </message>
    <message>
        <source>the folder cannot be brought to the disk</source>
        <translation>no se puede llevar la carpeta al disco</translation>
    </message>
    <message>
        <source>simulated instrument</source>
        <translation>instrumento simulado</translation>
    </message>
    <message>
        <source>%1 is not there. Check that the adapter is plugged in.</source>
        <translation>%1 no está. Compruebe que el adaptador esté enchufado.</translation>
    </message>
    <message>
        <source>%1 is in use by another program.</source>
        <translation>%1 lo está usando otro programa.</translation>
    </message>
    <message>
        <source>There is no permission to use %1. Add yourself to group dialout and log in again.</source>
        <translation>No hay permiso para usar %1. Añádase al grupo dialout e inicie sesión de nuevo.</translation>
    </message>
    <message>
        <source>%1 is not a serial line.</source>
        <translation>%1 no es una línea serie.</translation>
    </message>
    <message>
        <source>The serial line %1 takes no more characters. It was closed.</source>
        <translation>La línea serie %1 no admite más caracteres. Se cerró.</translation>
    </message>
    <message>
        <source>The serial line %1 has gone. Was the adapter or its cable pulled out?</source>
        <translation>La línea serie %1 ha desaparecido. ¿Se soltó el adaptador o su cable?</translation>
    </message>
    <message>
        <source>The settings file %1 is damaged. The last good copy is used.</source>
        <translation>El archivo de ajustes %1 está dañado. Se usa la última copia buena.</translation>
    </message>
    <message>
        <source>The settings file %1 is damaged. What could be read of it is used.</source>
        <translation>El archivo de ajustes %1 está dañado. Se usa lo que se pudo leer de él.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be read: %2.</source>
        <translation>No se puede leer el archivo de ajustes %1: %2.</translation>
    </message>
    <message>
        <source>The settings cannot be saved in %1: %2. They hold until the program ends.</source>
        <translation>No se pueden guardar los ajustes en %1: %2. Valen hasta que acabe el programa.</translation>
    </message>
    <message>
        <source>Home (%1)</source>
        <translation>Carpeta personal (%1)</translation>
    </message>
    <message>
        <source>CAUTION

For Voltage Recorders press
the display switch until the
reading appears.

Then press OK</source>
        <translation>ATENCIÓN

En registradores de tensión pulse
el botón de pantalla hasta que
aparezca la lectura.

Después pulse Aceptar</translation>
    </message>
    <message>
        <source>LOW INSTRUMENT BATTERY</source>
        <translation>BATERÍA DEL INSTRUMENTO BAJA</translation>
    </message>
    <message>
        <source>Communication port not valid.
Try selecting a different COM port</source>
        <translation>Puerto de comunicación no válido.
Pruebe con otro puerto COM</translation>
    </message>
    <message>
        <source>Check that the instrument is connected or try selecting some other
instrument type (using Options &gt; Instrument Selection).</source>
        <translation>Compruebe que el instrumento esté conectado o elija otro
tipo de instrumento (en Opciones &gt; Elegir instrumento).</translation>
    </message>
    <message>
        <source>Insert the cable into the instrument.</source>
        <translation>Enchufe el cable en el instrumento.</translation>
    </message>
    <message>
        <source>Then Press 'OK'.</source>
        <translation>Después pulse «Aceptar».</translation>
    </message>
    <message>
        <source>Press 'OK'.</source>
        <translation>Pulse «Aceptar».</translation>
    </message>
    <message>
        <source>Then insert the cable into the instrument.</source>
        <translation>Después enchufe el cable en el instrumento.</translation>
    </message>
    <message>
        <source>(If the interface has a transfer switch,
make sure it's set to 'TRANSFER'.)</source>
        <translation>(Si la interfaz tiene un conmutador,
debe estar en «TRANSFER».)</translation>
    </message>
    <message>
        <source>Auto select: Initial port settings = %1</source>
        <translation>Selección automática: ajuste inicial del puerto = %1</translation>
    </message>
    <message>
        <source>Hit 'Cancel' or use ESC key to quit</source>
        <translation>«Cancelar» o Esc para salir</translation>
    </message>
    <message>
        <source>Waiting for the instrument to send its recording.</source>
        <translation>Esperando a que el instrumento envíe su registro.</translation>
    </message>
    <message>
        <source>Now insert the cable into the instrument.</source>
        <translation>Enchufe ahora el cable en el instrumento.</translation>
    </message>
    <message>
        <source>The instrument is sending. Leave the cable in until the end.</source>
        <translation>El instrumento está enviando. Deje el cable puesto hasta el final.</translation>
    </message>
    <message>
        <source>RETURN THE SWITCH TO 'STANDBY'
OR REMOVE THE CABLE NOW</source>
        <translation>PONGA EL CONMUTADOR EN «STANDBY»
O QUITE EL CABLE AHORA</translation>
    </message>
    <message>
        <source>%1 in use
Cancel or Escape to quit</source>
        <translation>%1 en uso
Cancelar o Esc para salir</translation>
    </message>
    <message>
        <source>Cancel or Escape to quit
%1 in use</source>
        <translation>Cancelar o Esc para salir
%1 en uso</translation>
    </message>
    <message>
        <source>Nothing has come since %1. Check that the cable sits firmly at both ends, that a transfer switch is set to TRANSFER, and that %2 and the type %3 are the right ones. Cancel or Escape ends the wait.</source>
        <translation>No ha llegado nada desde las %1. Compruebe que el cable esté firme en ambos extremos, que un conmutador esté en TRANSFER y que %2 y el tipo %3 sean los correctos. Cancelar o Esc termina la espera.</translation>
    </message>
    <message>
        <source>Waiting for response from the unit.</source>
        <translation>Esperando respuesta del equipo.</translation>
    </message>
    <message>
        <source>Characters received so far:%1</source>
        <translation>Caracteres recibidos hasta ahora: %1</translation>
    </message>
    <message>
        <source>Waiting for data...</source>
        <translation>Esperando datos...</translation>
    </message>
    <message>
        <source>Terminated by waiting for data</source>
        <translation>Terminado esperando datos</translation>
    </message>
    <message>
        <source>Treating unit as %1. Got a response. Downloading data...</source>
        <translation>Equipo tratado como %1. Hay respuesta. Descargando datos...</translation>
    </message>
    <message>
        <source>Treating unit as %1. Waiting for response...</source>
        <translation>Equipo tratado como %1. Esperando respuesta...</translation>
    </message>
    <message>
        <source>Now treating unit as %1. Waiting for response...</source>
        <translation>Equipo tratado ahora como %1. Esperando respuesta...</translation>
    </message>
    <message>
        <source>No response. Changing settings. (Takes about 5 seconds)...</source>
        <translation>Sin respuesta. Cambiando ajustes. (Tarda unos 5 segundos)...</translation>
    </message>
    <message>
        <source>Bad header. Changing settings. (Takes about 5 seconds)...</source>
        <translation>Cabecera errónea. Cambiando ajustes. (Tarda unos 5 segundos)...</translation>
    </message>
    <message>
        <source>No response.</source>
        <translation>Sin respuesta.</translation>
    </message>
    <message>
        <source>No response in %1 seconds</source>
        <translation>Sin respuesta en %1 segundos</translation>
    </message>
    <message>
        <source>No response in %1 seconds.</source>
        <translation>Sin respuesta en %1 segundos.</translation>
    </message>
    <message>
        <source>No response in %1 seconds at each of two different baud rates.</source>
        <translation>Sin respuesta en %1 segundos a cada una de dos velocidades.</translation>
    </message>
    <message>
        <source>Check that the instrument is connected.
Otherwise remove the cable from the instrument, and then
try selecting some other instrument type
(using Options &gt; Instrument Selection).</source>
        <translation>Compruebe que el instrumento esté conectado.
Si no, quite el cable del instrumento y
elija otro tipo de instrumento
(en Opciones &gt; Elegir instrumento).</translation>
    </message>
    <message>
        <source>Response from instrument not valid.
Remove the cable from the instrument, and then
try selecting some other instrument type
(using Options &gt; Instrument Selection)</source>
        <translation>Respuesta del instrumento no válida.
Quite el cable del instrumento y
elija otro tipo de instrumento
(en Opciones &gt; Elegir instrumento)</translation>
    </message>
    <message>
        <source>Ready to start download.</source>
        <translation>Listo para descargar.</translation>
    </message>
    <message>
        <source>Total No. of characters received = %1</source>
        <translation>Total de caracteres recibidos = %1</translation>
    </message>
    <message>
        <source>PROCESSING DATA; WAIT</source>
        <translation>PROCESANDO DATOS; ESPERE</translation>
    </message>
    <message>
        <source>No. of characters processed = %1</source>
        <translation>Caracteres procesados = %1</translation>
    </message>
    <message>
        <source>PROCEED</source>
        <translation>CONTINUAR</translation>
    </message>
    <message>
        <source>WARNING</source>
        <translation>ADVERTENCIA</translation>
    </message>
    <message>
        <source>Enter date and time of the field initialization
using format 'mm-dd-yy hh:mm'</source>
        <translation>Escriba la fecha y la hora de la inicialización en campo
con el formato «mm-dd-yy hh:mm»</translation>
    </message>
    <message>
        <source>Instrument Information from download</source>
        <translation>Información del instrumento descargado</translation>
    </message>
    <message>
        <source>REMEMBER TO SAVE THIS DOWNLOAD TO A FILE</source>
        <translation>RECUERDE GUARDAR ESTA DESCARGA EN UN ARCHIVO</translation>
    </message>
    <message>
        <source>Instrument clock: the same as this computer's</source>
        <translation>Reloj del instrumento: igual que el de este ordenador</translation>
    </message>
    <message>
        <source>Instrument clock: %1 min ahead of this computer's</source>
        <translation>Reloj del instrumento: %1 min por delante de este ordenador</translation>
    </message>
    <message>
        <source>Instrument clock: %1 min behind this computer's</source>
        <translation>Reloj del instrumento: %1 min por detrás de este ordenador</translation>
    </message>
    <message>
        <source>Instrument clock: %1 days ahead of this computer's</source>
        <translation>Reloj del instrumento: %1 días por delante de este ordenador</translation>
    </message>
    <message>
        <source>Instrument clock: %1 days behind this computer's</source>
        <translation>Reloj del instrumento: %1 días por detrás de este ordenador</translation>
    </message>
    <message>
        <source>Mode: unknown</source>
        <translation>Modo: desconocido</translation>
    </message>
    <message>
        <source>Mode: Min/Max/Avg %1 min interval</source>
        <translation>Modo: mín/máx/media, intervalo %1 min</translation>
    </message>
    <message>
        <source>Mode: Average %1 min interval</source>
        <translation>Modo: media, intervalo %1 min</translation>
    </message>
    <message>
        <source>Readings: %1</source>
        <translation>Lecturas: %1</translation>
    </message>
    <message>
        <source>They span: %1 d %2 h %3 min</source>
        <translation>Abarcan: %1 d %2 h %3 min</translation>
    </message>
    <message>
        <source>The memory holds: %1 readings</source>
        <translation>La memoria contiene: %1 lecturas</translation>
    </message>
    <message>
        <source>Type: %1 Ser. %2</source>
        <translation>Tipo: %1 N.º %2</translation>
    </message>
    <message>
        <source>Start Time %1</source>
        <translation>Inicio %1</translation>
    </message>
    <message>
        <source>Downloaded (stopped): %1</source>
        <translation>Descargado (parado): %1</translation>
    </message>
    <message>
        <source>Downloaded or stopped at: %1</source>
        <translation>Descargado o parado: %1</translation>
    </message>
    <message>
        <source>InsertErrors(): Couldn't find 'T:' in gText$</source>
        <translation>InsertErrors(): no se encontró «T:» en gText$</translation>
    </message>
    <message>
        <source>(no instrument selected)</source>
        <translation>(ningún instrumento elegido)</translation>
    </message>
    <message>
        <source>PQX (the original model)</source>
        <translation>PQX (el modelo original)</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>PQX-K4 Auto Select</source>
        <translation>PQX-K4 automático</translation>
    </message>
    <message>
        <source>PQX-K4-AutoDetect</source>
        <translation>PQX-K4-automático</translation>
    </message>
    <message>
        <source>The mode letter of the recording could not be read (the header ends before it).</source>
        <translation>No se pudo leer la letra de modo del registro (la cabecera acaba antes).</translation>
    </message>
    <message>
        <source>The mode letter of the recording could not be read (%1).</source>
        <translation>No se pudo leer la letra de modo del registro (%1).</translation>
    </message>
    <message>
        <source>What the instrument sent is kept. Which interval and mode did it record with?</source>
        <translation>Lo que envió el instrumento está guardado. ¿Con qué intervalo y modo registró?</translation>
    </message>
    <message>
        <source>The recording that was downloaded is in no file.</source>
        <translation>El registro descargado no está en ningún archivo.</translation>
    </message>
    <message>
        <source>Save it now?</source>
        <translation>¿Guardarlo ahora?</translation>
    </message>
    <message>
        <source>Give the recording up? It cannot be got back then.</source>
        <translation>¿Renunciar al registro? Ya no se podrá recuperar.</translation>
    </message>
    <message>
        <source>Invalid Port</source>
        <translation>Puerto no válido</translation>
    </message>
    <message>
        <source>%1: in use by another program</source>
        <translation>%1: en uso por otro programa</translation>
    </message>
    <message>
        <source>%1: no permission: add yourself to group dialout and log in again</source>
        <translation>%1: sin permiso: añádase al grupo dialout e inicie sesión de nuevo</translation>
    </message>
    <message>
        <source>%1: not there</source>
        <translation>%1: no está</translation>
    </message>
    <message>
        <source>%1: free</source>
        <translation>%1: libre</translation>
    </message>
    <message>
        <source>%1 character followed the end mark of the recording.
It may be cut short there: download it again before you initialize the instrument.</source>
        <translation>%1 carácter siguió a la marca de fin del registro.
Puede estar cortado ahí: descárguelo de nuevo antes de inicializar el instrumento.</translation>
    </message>
    <message>
        <source>%1 characters followed the end mark of the recording.
It may be cut short there: download it again before you initialize the instrument.</source>
        <translation>%1 caracteres siguieron a la marca de fin del registro.
Puede estar cortado ahí: descárguelo de nuevo antes de inicializar el instrumento.</translation>
    </message>
    <message>
        <source>Bad data. Try downloading again.</source>
        <translation>Datos erróneos. Intente descargar de nuevo.</translation>
    </message>
    <message>
        <source>No was taken: the download was not kept.</source>
        <translation>Se tomó No: la descarga no se conservó.</translation>
    </message>
    <message>
        <source>No date was given: the download was not kept.</source>
        <translation>No se dio fecha: la descarga no se conservó.</translation>
    </message>
    <message>
        <source>being received</source>
        <translation>recibiéndose</translation>
    </message>
    <message>
        <source>interrupted, not saved</source>
        <translation>interrumpido, sin guardar</translation>
    </message>
    <message>
        <source>received, not saved</source>
        <translation>recibido, sin guardar</translation>
    </message>
    <message>
        <source>accepted, not saved yet</source>
        <translation>aceptado, aún sin guardar</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>rechazado</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>guardado</translation>
    </message>
    <message>
        <source>dropped</source>
        <translation>descartado</translation>
    </message>
    <message>
        <source>download</source>
        <translation>descarga</translation>
    </message>
    <message>
        <source>recover</source>
        <translation>recuperación</translation>
    </message>
    <message>
        <source>%1 %2 on %3, %4 characters: %5</source>
        <translation>%1 %2 en %3, %4 caracteres: %5</translation>
    </message>
    <message>
        <source>%1 download on %2, %3 characters: %4</source>
        <translation>%1 descarga en %2, %3 caracteres: %4</translation>
    </message>
    <message>
        <source>%1 download on %2, %3 Ser. %4, %5 characters: %6</source>
        <translation>%1 descarga en %2, %3 n.º %4, %5 caracteres: %6</translation>
    </message>
    <message>
        <source>%1 recover on %2, %3 characters: %4</source>
        <translation>%1 recuperación en %2, %3 caracteres: %4</translation>
    </message>
    <message>
        <source>%1 recover on %2, %3 Ser. %4, %5 characters: %6</source>
        <translation>%1 recuperación en %2, %3 n.º %4, %5 caracteres: %6</translation>
    </message>
    <message>
        <source>Flag settings per 'runspec.txt' file:</source>
        <translation>Ajustes según el archivo «runspec.txt»:</translation>
    </message>
    <message>
        <source>No valid run specs found in 'runspec.txt'.
- To avoid getting this message either fix file 'runspec.txt'
or delete it.</source>
        <translation>No hay indicaciones válidas en «runspec.txt».
- Para evitar este mensaje corrija el archivo
o bórrelo.</translation>
    </message>
    <message>
        <source>WAITING FOR RESPONSE FROM INSTRUMENT</source>
        <translation>ESPERANDO RESPUESTA DEL INSTRUMENTO</translation>
    </message>
    <message>
        <source>READY</source>
        <translation>LISTO</translation>
    </message>
    <message>
        <source>Status check complete. You may disconnect the instrument now.
Do you want to do another?</source>
        <translation>Comprobación terminada. Ya puede desconectar el instrumento.
¿Quiere comprobar otro?</translation>
    </message>
    <message>
        <source>Do you want to do another?</source>
        <translation>¿Quiere hacer otro?</translation>
    </message>
    <message>
        <source>By the 2nd timeout, the following incomplete header had been received:
Line1 = '%1'. Length=%2</source>
        <translation>Al segundo vencimiento se había recibido esta cabecera incompleta:
Línea 1 = '%1'. Longitud=%2</translation>
    </message>
    <message>
        <source>Invalid header fragment received: '%1'</source>
        <translation>Se recibió un fragmento de cabecera no válido: '%1'</translation>
    </message>
    <message>
        <source>After the 2nd timeout, the following erroneous Line1 characters had been received:%1</source>
        <translation>Tras el segundo vencimiento se habían recibido estos caracteres erróneos de la línea 1: %1</translation>
    </message>
    <message>
        <source>In TLY.mnuItemStatusCheck_Click: Port found open. So I'll close it.</source>
        <translation>En TLY.mnuItemStatusCheck_Click: el puerto estaba abierto. Se va a cerrar.</translation>
    </message>
    <message>
        <source>Status Check OK but...</source>
        <translation>Comprobación correcta, pero...</translation>
    </message>
    <message>
        <source>Type: %1 Serial Number %2</source>
        <translation>Tipo: %1 Número de serie %2</translation>
    </message>
    <message>
        <source>Mode setting: %1 Time On: %2 (%3) Condition: %4</source>
        <translation>Modo: %1 Encendido: %2 (%3) Estado: %4</translation>
    </message>
    <message>
        <source>Mode setting: Average %1 min Cont Time On: %2 (%3) Condition: %4</source>
        <translation>Modo: media %1 min continuo Encendido: %2 (%3) Estado: %4</translation>
    </message>
    <message>
        <source>Mode setting: Average %1 min Stop Time On: %2 (%3) Condition: %4</source>
        <translation>Modo: media %1 min parada Encendido: %2 (%3) Estado: %4</translation>
    </message>
    <message>
        <source>Mode setting: Min/Max/Avg %1 min Cont Time On: %2 (%3) Condition: %4</source>
        <translation>Modo: mín/máx/media %1 min continuo Encendido: %2 (%3) Estado: %4</translation>
    </message>
    <message>
        <source>Mode setting: Min/Max/Avg %1 min Stop Time On: %2 (%3) Condition: %4</source>
        <translation>Modo: mín/máx/media %1 min parada Encendido: %2 (%3) Estado: %4</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En marcha</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Parado</translation>
    </message>
    <message>
        <source>HVN 40 and 80 have no mode letter; they record 15-minute averages in a continuous loop.</source>
        <translation>Los HVN 40 y 80 no tienen letra de modo; registran medias de 15 minutos en bucle continuo.</translation>
    </message>
    <message>
        <source>Vbatt = %1 volts</source>
        <translation>Vbatt = %1 voltios</translation>
    </message>
    <message>
        <source>Auto-selected settings now being used are for the %1</source>
        <translation>El ajuste elegido automáticamente es el de %1</translation>
    </message>
    <message>
        <source>Downloaded data has the following error(s):</source>
        <translation>Los datos descargados tienen estos errores:</translation>
    </message>
    <message>
        <source>• %1 line(s) with an incorrect number of readings</source>
        <translation>• %1 línea(s) con un número de lecturas incorrecto</translation>
    </message>
    <message>
        <source>• %1 reading(s) over 999</source>
        <translation>• %1 lectura(s) por encima de 999</translation>
    </message>
    <message>
        <source>• %1 terminating ctrl/z characters found (should be exactly 1)</source>
        <translation>• %1 caracteres ctrl/z de fin (debe haber exactamente 1)</translation>
    </message>
    <message>
        <source>• %1 bad character(s)</source>
        <translation>• %1 carácter(es) erróneo(s)</translation>
    </message>
    <message>
        <source>(ASCII value of first bad character = %1)</source>
        <translation>(valor ASCII del primer carácter erróneo = %1)</translation>
    </message>
    <message>
        <source>Do you want to save this file anyway?
(If you click 'No' you can try another Download.)</source>
        <translation>¿Quiere guardar este archivo de todos modos?
(Con «No» puede intentar otra descarga.)</translation>
    </message>
    <message>
        <source>Download had %1 '999' reading(s)
(which was/were converted to '000')</source>
        <translation>La descarga tenía %1 lectura(s) «999»
(convertidas en «000»)</translation>
    </message>
    <message>
        <source>Download had %1 '999' reading(s)
(which was/were left as is)</source>
        <translation>La descarga tenía %1 lectura(s) «999»
(dejadas como están)</translation>
    </message>
    <message>
        <source>DownLoad</source>
        <translation>Descarga</translation>
    </message>
    <message>
        <source>Instrument Properties</source>
        <translation>Propiedades del instrumento</translation>
    </message>
    <message>
        <source>Baud Rate</source>
        <translation>Velocidad (baudios)</translation>
    </message>
    <message>
        <source>Maximum Samples</source>
        <translation>Número máximo de muestras</translation>
    </message>
    <message>
        <source>%1 (Special Test)</source>
        <translation>%1 (prueba especial)</translation>
    </message>
    <message>
        <source>%1 (Original PQX)</source>
        <translation>%1 (PQX original)</translation>
    </message>
    <message>
        <source>%1 (512 kbit eeprom)</source>
        <translation>%1 (eeprom de 512 kbit)</translation>
    </message>
    <message>
        <source>%1 (256 kbit eeprom)</source>
        <translation>%1 (eeprom de 256 kbit)</translation>
    </message>
    <message>
        <source>%1 (128 kbit eeprom)</source>
        <translation>%1 (eeprom de 128 kbit)</translation>
    </message>
    <message>
        <source>Instrument Selection</source>
        <translation>Elección del instrumento</translation>
    </message>
    <message>
        <source>Must first select an instrument type:</source>
        <translation>Primero hay que elegir un tipo de instrumento:</translation>
    </message>
    <message>
        <source>Please select the instrument you're using and then Press OK.</source>
        <translation>Elija el instrumento que usa y pulse Aceptar.</translation>
    </message>
    <message>
        <source>None of the above</source>
        <translation>Ninguno de los anteriores</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propiedades</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Com Port Selection</source>
        <translation>Elegir puerto COM</translation>
    </message>
    <message>
        <source>ComPort</source>
        <translation>Puerto COM</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Assign</source>
        <translation>Asignar</translation>
    </message>
    <message>
        <source>Assign puts another device behind a port: an adapter, or the simulated instrument.</source>
        <translation>Asignar pone otra cosa tras un puerto: un adaptador o el instrumento simulado.</translation>
    </message>
    <message>
        <source>Assign a device to %1</source>
        <translation>Asignar un dispositivo a %1</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>%1 (the usual one)</source>
        <translation>%1 (el habitual)</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Debugging log:</source>
        <translation>Registro de depuración:</translation>
    </message>
    <message>
        <source>Debugging log</source>
        <translation>Registro de depuración</translation>
    </message>
    <message>
        <source>What to check</source>
        <translation>Qué comprobar</translation>
    </message>
    <message>
        <source>Status Check</source>
        <translation>Comprobación de estado</translation>
    </message>
    <message>
        <source>Warning! - This Function will clear
All previous Data from the instrument
Select 'OK' to continue, or 'CANCEL' to abort</source>
        <translation>¡Atención! - Esta función borra
todos los datos anteriores del instrumento
«ACEPTAR» continúa, «CANCELAR» abandona</translation>
    </message>
    <message>
        <source>INITIALIZING...
- May take around 15 seconds

(You can cancel at any time)</source>
        <translation>INICIALIZANDO...
- Puede tardar unos 15 segundos

(Puede cancelar en cualquier momento)</translation>
    </message>
    <message>
        <source>Initializing erases the instrument. Initialize it anyway?</source>
        <translation>Inicializar borra el instrumento. ¿Inicializarlo de todos modos?</translation>
    </message>
    <message>
        <source>Instrument is initializing...</source>
        <translation>El instrumento se está inicializando...</translation>
    </message>
    <message>
        <source>Initialization is complete, but...</source>
        <translation>La inicialización ha terminado, pero...</translation>
    </message>
    <message>
        <source>interrupted, NOT SAVED YET</source>
        <translation>interrumpido, AÚN SIN GUARDAR</translation>
    </message>
    <message>
        <source>NOT SAVED YET</source>
        <translation>AÚN SIN GUARDAR</translation>
    </message>
    <message>
        <source>interrupted, NOT SAVED YET;</source>
        <translation>interrumpido, AÚN SIN GUARDAR;</translation>
    </message>
    <message>
        <source>NOT SAVED YET;</source>
        <translation>AÚN SIN GUARDAR;</translation>
    </message>
    <message>
        <source>saved;</source>
        <translation>guardado;</translation>
    </message>
    <message>
        <source>refused;</source>
        <translation>rechazado;</translation>
    </message>
    <message>
        <source>dropped;</source>
        <translation>descartado;</translation>
    </message>
    <message>
        <source>%1 more NOT SAVED YET</source>
        <translation>%1 más AÚN SIN GUARDAR</translation>
    </message>
    <message>
        <source>without number (%1):</source>
        <translation>sin número (%1):</translation>
    </message>
    <message>
        <source>No downloads are known on this computer.</source>
        <translation>No se conocen descargas en este ordenador.</translation>
    </message>
    <message>
        <source>Last downloads:</source>
        <translation>Últimas descargas:</translation>
    </message>
    <message>
        <source>A download of this instrument is not saved yet:</source>
        <translation>Una descarga de este instrumento aún no está guardada:</translation>
    </message>
    <message>
        <source>HVN 40 or 80 only have 15 min average, continuoue mode</source>
        <translation>HVN 40 u 80 solo tienen media de 15 min en modo continuo</translation>
    </message>
    <message>
        <source>Initialization complete. New settings as read back from instrument:</source>
        <translation>Inicialización terminada. Nuevo ajuste leído del instrumento:</translation>
    </message>
    <message>
        <source>Mode setting: Average Cont %1 min interval</source>
        <translation>Modo: media, continuo, intervalo %1 min</translation>
    </message>
    <message>
        <source>Mode setting: Average Stop %1 min interval</source>
        <translation>Modo: media, parada, intervalo %1 min</translation>
    </message>
    <message>
        <source>Mode setting: Min/Max/Avg Cont %1 min interval</source>
        <translation>Modo: mín/máx/media, continuo, intervalo %1 min</translation>
    </message>
    <message>
        <source>Mode setting: Min/Max/Avg Stop %1 min interval</source>
        <translation>Modo: mín/máx/media, parada, intervalo %1 min</translation>
    </message>
    <message>
        <source>Time %1</source>
        <translation>Hora %1</translation>
    </message>
    <message>
        <source>CAUTION
DATA MAY NOT BE RECOVERED IF
INSTRUMENT HAD BEEN IN
CONTINUOUS MODE AND MEMORY FILLED</source>
        <translation>ATENCIÓN
LOS DATOS PUEDEN NO RECUPERARSE SI
EL INSTRUMENTO ESTABA EN MODO
CONTINUO Y SE LLENÓ LA MEMORIA</translation>
    </message>
    <message>
        <source>OK TO REMOVE THE CABLE NOW</source>
        <translation>YA PUEDE QUITAR EL CABLE</translation>
    </message>
    <message>
        <source>The 'Recover' feature is not implemented for the case of the
instrument type being 'Auto Select'.</source>
        <translation>«Recuperar» no existe para el
tipo de instrumento «automático».</translation>
    </message>
    <message>
        <source>Instead do a 'Status check' to see what instrument type the Tallyline
ends up treating is as. (It will most likely be %1 or %2.)</source>
        <translation>Compruebe en su lugar el estado para ver como qué tipo
lo trata Tallyline. (Seguramente %1 o %2.)</translation>
    </message>
    <message>
        <source>Then use Options &gt; Instrument Selection to specifically select
the type of instrument being used, and the 'Recover' feature will
then be available.</source>
        <translation>Elija después ese tipo en Opciones &gt; Elegir instrumento,
y «Recuperar» estará
disponible.</translation>
    </message>
    <message>
        <source>NOT A VALID INSTRUMENT
REMOVE THE CABLE NOW</source>
        <translation>INSTRUMENTO NO VÁLIDO
QUITE EL CABLE AHORA</translation>
    </message>
    <message>
        <source>Not Voltmeter</source>
        <translation>No es un voltímetro</translation>
    </message>
    <message>
        <source>CONTINUOUS DATA; NOT RECOVERABLE
CANNOT DETERMINE STOPPED TIME</source>
        <translation>DATOS CONTINUOS; NO RECUPERABLES
NO SE PUEDE DETERMINAR LA HORA DE PARADA</translation>
    </message>
    <message>
        <source>The recording was cut short before its end mark: the time at which it stopped cannot be worked out. Recover it again.</source>
        <translation>El registro se cortó antes de su marca de fin: no se puede calcular la hora en que paró. Recupérelo de nuevo.</translation>
    </message>
    <message>
        <source>Terminating the initialization</source>
        <translation>Terminando la inicialización</translation>
    </message>
    <message>
        <source>Initialize</source>
        <translation>Inicialización</translation>
    </message>
    <message>
        <source>NO REPONSE</source>
        <translation>SIN RESPUESTA</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>CANCELAR</translation>
    </message>
    <message>
        <source>Initialization Options</source>
        <translation>Opciones de inicialización</translation>
    </message>
    <message>
        <source>Select Time</source>
        <translation>Elegir intervalo</translation>
    </message>
    <message>
        <source>15 minutes</source>
        <translation>15 minutos</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5 minutos</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 minuto</translation>
    </message>
    <message>
        <source>Average or Min/Max/Avg</source>
        <translation>Media o mín/máx/media</translation>
    </message>
    <message>
        <source>Min/Max/Avg</source>
        <translation>Mín/máx/media</translation>
    </message>
    <message>
        <source>Continuous or Stop</source>
        <translation>Continuo o parada</translation>
    </message>
    <message>
        <source>Continuous Loop</source>
        <translation>Bucle continuo</translation>
    </message>
    <message>
        <source>Stop when memory full</source>
        <translation>Parar con la memoria llena</translation>
    </message>
    <message>
        <source>Last downloads</source>
        <translation>Últimas descargas</translation>
    </message>
    <message>
        <source>Proceed</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>failed battery recovery</source>
        <translation>recuperación tras fallo de batería</translation>
    </message>
    <message>
        <source>Enter Station Name</source>
        <translation>Escriba el nombre de la estación</translation>
    </message>
    <message>
        <source>Station Name</source>
        <translation>Nombre de la estación</translation>
    </message>
    <message>
        <source>Station Peak</source>
        <translation>Punta de la estación</translation>
    </message>
    <message>
        <source>EnterFeeder Name or use default</source>
        <translation>Nombre del alimentador, o el propuesto</translation>
    </message>
    <message>
        <source>Red Phase</source>
        <translation>Fase roja</translation>
    </message>
    <message>
        <source>WhitePhase</source>
        <translation>Fase blanca</translation>
    </message>
    <message>
        <source>Blue Phase</source>
        <translation>Fase azul</translation>
    </message>
    <message>
        <source>File of the red phase</source>
        <translation>Archivo de la fase roja</translation>
    </message>
    <message>
        <source>File of the white phase</source>
        <translation>Archivo de la fase blanca</translation>
    </message>
    <message>
        <source>File of the blue phase</source>
        <translation>Archivo de la fase azul</translation>
    </message>
    <message>
        <source>Show Result</source>
        <translation>Mostrar resultado</translation>
    </message>
    <message>
        <source>Show Station Peak</source>
        <translation>Mostrar punta de la estación</translation>
    </message>
    <message>
        <source>PRINT ALL FEEDER RESULTS</source>
        <translation>IMPRIMIR TODOS LOS ALIMENTADORES</translation>
    </message>
    <message>
        <source>Preview of all feeder results</source>
        <translation>Vista previa de todos los alimentadores</translation>
    </message>
    <message>
        <source>PRINT STATION PEAK</source>
        <translation>IMPRIMIR PUNTA DE LA ESTACIÓN</translation>
    </message>
    <message>
        <source>Preview of the station peak</source>
        <translation>Vista previa de la punta de la estación</translation>
    </message>
    <message>
        <source>CLOSE WINDOW</source>
        <translation>CERRAR VENTANA</translation>
    </message>
    <message>
        <source>RESULT</source>
        <translation>RESULTADO</translation>
    </message>
    <message>
        <source>NEXT FEEDER</source>
        <translation>ALIMENTADOR SIGUIENTE</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>Feeder%1</source>
        <translation>Alimentador%1</translation>
    </message>
    <message>
        <source>TARNWELL STATION FEEDER REPORT</source>
        <translation>TARNWELL STATION FEEDER REPORT</translation>
    </message>
    <message>
        <source>FEEDER AMPS DURING FEEDER PEAK (NON-COINCIDENTAL)</source>
        <translation>CORRIENTES DE LOS ALIMENTADORES EN SU PUNTA (NO COINCIDENTE)</translation>
    </message>
    <message>
        <source>Feeder Phase Amps During Station Peak (Coincidental Peak)</source>
        <translation>Corrientes de fase de los alimentadores en la punta de la estación (punta coincidente)</translation>
    </message>
    <message>
        <source>STATION NAME: %1</source>
        <translation>NOMBRE DE LA ESTACIÓN: %1</translation>
    </message>
    <message>
        <source>STATION: %1</source>
        <translation>ESTACIÓN: %1</translation>
    </message>
    <message>
        <source>Station: %1</source>
        <translation>Estación: %1</translation>
    </message>
    <message>
        <source>Feeder %1</source>
        <translation>Alimentador %1</translation>
    </message>
    <message>
        <source>Feeder Amperes During Feeder Peak (Non-Coincidental Peak)</source>
        <translation>Corrientes del alimentador en su punta (punta no coincidente)</translation>
    </message>
    <message>
        <source>%1, %2 phase: %3 is also taken for %4, %5 phase</source>
        <translation>%1, fase %2: %3 también se usa para %4, fase %5</translation>
    </message>
    <message>
        <source>%1, %2 phase: %3 has %4 item(s) that are no numbers; each counts with its leading number, or 0</source>
        <translation>%1, fase %2: %3 tiene %4 elemento(s) que no son números; cada uno cuenta con el número con que empieza, o 0</translation>
    </message>
    <message>
        <source>%1, %2 phase: %3 starts at %4, %5 at %6</source>
        <translation>%1, fase %2: %3 empieza a las %4, %5 a las %6</translation>
    </message>
    <message>
        <source>%1, %2 phase: %3 has %4 readings, %5 %6; the shortest count is scanned</source>
        <translation>%1, fase %2: %3 tiene %4 lecturas, %5 %6; se toma el número menor</translation>
    </message>
    <message>
        <source>red</source>
        <translation>roja</translation>
    </message>
    <message>
        <source>white</source>
        <translation>blanca</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>azul</translation>
    </message>
    <message>
        <source>%1: Mode mixing not allowed. Choose a file of the mode of %2.</source>
        <translation>%1: no se pueden mezclar modos. Elija un archivo del modo de %2.</translation>
    </message>
    <message>
        <source>Not a current file</source>
        <translation>No es un archivo de corriente</translation>
    </message>
    <message>
        <source>It is a recording of voltage. Choose the recording of the phase's current.</source>
        <translation>Es un registro de tensión. Elija el registro de la corriente de la fase.</translation>
    </message>
    <message>
        <source>%1: a recording of voltage. Choose the recording of the phase's current.</source>
        <translation>%1: un registro de tensión. Elija el registro de la corriente de la fase.</translation>
    </message>
    <message>
        <source>Load study</source>
        <translation>Estudio de carga</translation>
    </message>
    <message>
        <source>Copy Figures</source>
        <translation>Copiar cifras</translation>
    </message>
    <message>
        <source>Copy all figures as text</source>
        <translation>Copiar todas las cifras como texto</translation>
    </message>
    <message>
        <source>Picture...</source>
        <translation>Imagen...</translation>
    </message>
    <message>
        <source>Save the page as a PNG picture</source>
        <translation>Guardar la página como imagen PNG</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Imprimir...</translation>
    </message>
    <message>
        <source>Print the study</source>
        <translation>Imprimir el estudio</translation>
    </message>
    <message>
        <source>Save the study as PDF</source>
        <translation>Guardar el estudio como PDF</translation>
    </message>
    <message>
        <source>Save figures and readings as a workbook</source>
        <translation>Guardar cifras y lecturas como libro de cálculo</translation>
    </message>
    <message>
        <source>Demand window in minutes</source>
        <translation>Ventana de demanda en minutos</translation>
    </message>
    <message>
        <source>&amp;Window, min</source>
        <translation>&amp;Ventana, min</translation>
    </message>
    <message>
        <source>&amp;High limit</source>
        <translation>Límite &amp;alto</translation>
    </message>
    <message>
        <source>Runs of readings above it are marked and listed</source>
        <translation>Los tramos de lecturas por encima se marcan y se listan</translation>
    </message>
    <message>
        <source>&amp;Low limit</source>
        <translation>Límite &amp;bajo</translation>
    </message>
    <message>
        <source>Runs of readings below it are marked and listed</source>
        <translation>Los tramos de lecturas por debajo se marcan y se listan</translation>
    </message>
    <message>
        <source>&amp;Rating, A</source>
        <translation>Corriente &amp;nominal, A</translation>
    </message>
    <message>
        <source>Rated current of the circuit: checks its capacity</source>
        <translation>Corriente nominal del circuito: comprueba su capacidad</translation>
    </message>
    <message>
        <source>&amp;New load, A</source>
        <translation>Car&amp;ga nueva, A</translation>
    </message>
    <message>
        <source>Load to be connected</source>
        <translation>Carga que se va a conectar</translation>
    </message>
    <message>
        <source>&amp;Factor</source>
        <translation>&amp;Factor</translation>
    </message>
    <message>
        <source>On the highest demand of 15 minutes; 1.25 when empty</source>
        <translation>Sobre la demanda más alta de 15 minutos; 1.25 si está vacío</translation>
    </message>
    <message>
        <source>Line &amp;voltage, V</source>
        <translation>&amp;Tensión, V</translation>
    </message>
    <message>
        <source>Adds the power of the files as a channel</source>
        <translation>Añade la potencia de los archivos como canal</translation>
    </message>
    <message>
        <source>&amp;Power factor</source>
        <translation>Factor de &amp;potencia</translation>
    </message>
    <message>
        <source>1 when empty</source>
        <translation>1 si está vacío</translation>
    </message>
    <message>
        <source>H&amp;olidays</source>
        <translation>Fe&amp;stivos</translation>
    </message>
    <message>
        <source>Dates as YYYY-MM-DD that count as Sundays</source>
        <translation>Fechas AAAA-MM-DD que cuentan como domingos</translation>
    </message>
    <message>
        <source>%1: '%2' is no plain number</source>
        <translation>%1: «%2» no es un número simple</translation>
    </message>
    <message>
        <source>%1: '%2' is not above 0</source>
        <translation>%1: «%2» no es mayor que 0</translation>
    </message>
    <message>
        <source>%1: '%2' is below 0</source>
        <translation>%1: «%2» es menor que 0</translation>
    </message>
    <message>
        <source>%1: '%2' needs a %3</source>
        <translation>%1: «%2» necesita también %3</translation>
    </message>
    <message>
        <source>%1: '%2' is none of 5, 10, 15, 20, 30 and 60 minutes</source>
        <translation>%1: «%2» no es 5, 10, 15, 20, 30 ni 60 minutos</translation>
    </message>
    <message>
        <source>%1: '%2' is not above the low limit</source>
        <translation>%1: «%2» no está por encima del límite bajo</translation>
    </message>
    <message>
        <source>%1: '%2' is no date; write it as YYYY-MM-DD</source>
        <translation>%1: «%2» no es una fecha; escriba AAAA-MM-DD</translation>
    </message>
    <message>
        <source>'%1' is no plain number</source>
        <translation>«%1» no es un número simple</translation>
    </message>
    <message>
        <source>'%1' is not above 0</source>
        <translation>«%1» no es mayor que 0</translation>
    </message>
    <message>
        <source>'%1' is below 0</source>
        <translation>«%1» es menor que 0</translation>
    </message>
    <message>
        <source>'%1' needs a rating</source>
        <translation>«%1» necesita también una corriente nominal</translation>
    </message>
    <message>
        <source>'%1' needs a voltage</source>
        <translation>«%1» necesita también una tensión</translation>
    </message>
    <message>
        <source>'%1' is none of 5, 10, 15, 20, 30 and 60 minutes</source>
        <translation>«%1» no es 5, 10, 15, 20, 30 ni 60 minutos</translation>
    </message>
    <message>
        <source>'%1' is not above the low limit</source>
        <translation>«%1» no está por encima del límite bajo</translation>
    </message>
    <message>
        <source>'%1' is no date; write it as YYYY-MM-DD</source>
        <translation>«%1» no es una fecha; escriba AAAA-MM-DD</translation>
    </message>
    <message>
        <source>A capacity check needs files of amps</source>
        <translation>Comprobar la capacidad requiere archivos de amperios</translation>
    </message>
    <message>
        <source>Directory</source>
        <translation>Directorio</translation>
    </message>
    <message>
        <source>Drop-down</source>
        <translation>Lista desplegable</translation>
    </message>
    <message>
        <source>There are no readings after its header.</source>
        <translation>No hay lecturas después de su cabecera.</translation>
    </message>
    <message>
        <source>An axis is given as two numbers, the lower one first, such as 0 to 400.</source>
        <translation>Un eje se da con dos números, primero el menor, como 0 to 400.</translation>
    </message>
    <message>
        <source>The axis stays as it was.</source>
        <translation>El eje queda como estaba.</translation>
    </message>
    <message>
        <source>A limit line begins with its value, such as 400 Rating.</source>
        <translation>Una línea de límite empieza por su valor, como 400 Rating.</translation>
    </message>
    <message>
        <source>The limit lines stay as they were.</source>
        <translation>Las líneas de límite quedan como estaban.</translation>
    </message>
    <message>
        <source>Minimum and maximum of the y axis, such as 0 to 400
Nothing lets the readings decide</source>
        <translation>Mínimo y máximo del eje y, como 0 to 400
Nada deja decidir a las lecturas</translation>
    </message>
    <message>
        <source>Limit lines, each a value and a name, such as 400 Rating; 320 Planning
Nothing takes them away</source>
        <translation>Líneas de límite, cada una un valor y un nombre, como 400 Rating; 320 Planning
Nada las quita</translation>
    </message>
    <message>
        <source>Axis fixed at %1 to %2 %3</source>
        <translation>Eje fijo de %1 a %2 %3</translation>
    </message>
    <message>
        <source>Readings are combined by time, %1 to %2</source>
        <translation>Las lecturas se combinan por hora, de %1 a %2</translation>
    </message>
    <message>
        <source>Readings are combined by time, %1 to %2.</source>
        <translation>Las lecturas se combinan por hora, de %1 a %2.</translation>
    </message>
    <message>
        <source>no reading</source>
        <translation>sin lectura</translation>
    </message>
    <message>
        <source>%1: %2 items of the file could not be read</source>
        <translation>%1: %2 elementos del archivo no se pudieron leer</translation>
    </message>
    <message>
        <source>%1: %2 item of the file could not be read</source>
        <translation>%1: %2 elemento del archivo no se pudo leer</translation>
    </message>
    <message>
        <source>%1 has %2 of %3 readings</source>
        <translation>%1 tiene %2 de %3 lecturas</translation>
    </message>
    <message>
        <source>%1 has no reading for the last %2; its current counts as 0 there</source>
        <translation>%1 no tiene lectura para los últimos %2; su corriente cuenta ahí como 0</translation>
    </message>
    <message>
        <source>%1 to %2 (%3, %4 readings)</source>
        <translation>%1 a %2 (%3, %4 lecturas)</translation>
    </message>
    <message>
        <source>%1 to %2 (%3, %4 reading)</source>
        <translation>%1 a %2 (%3, %4 lectura)</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>Cifras</translation>
    </message>
    <message>
        <source>Figures of the marked span</source>
        <translation>Cifras de la parte marcada</translation>
    </message>
    <message>
        <source>Figures of the span</source>
        <translation>Cifras de la parte</translation>
    </message>
    <message>
        <source>Span</source>
        <translation>Parte</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Observaciones</translation>
    </message>
    <message>
        <source>&amp;Copy figures</source>
        <translation>&amp;Copiar cifras</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>It took the place of an earlier file.</source>
        <translation>Sustituyó a un archivo anterior.</translation>
    </message>
    <message>
        <source>Not a current file
It is a recording of voltage. Choose the recording of the phase's current.</source>
        <translation>No es un archivo de corriente
Es un registro de tensión. Elija el registro de la corriente de la fase.</translation>
    </message>
    <message>
        <source>%1, %2 phase: %3 has %4 items that can be read as no number; each counts with its leading number, or 0</source>
        <translation>%1, fase %2: %3 tiene %4 elementos que no se leen como números; cada uno cuenta con el número con que empieza, o 0</translation>
    </message>
    <message>
        <source>%1, %2 phase: %3 has %4 item that can be read as no number; each counts with its leading number, or 0</source>
        <translation>%1, fase %2: %3 tiene %4 elemento que no se lee como número; cuenta con el número con que empieza, o 0</translation>
    </message>
    <message>
        <source>%1 item of the file could not be read as numbers; each counts with its leading number, or 0</source>
        <translation>%1 elemento del archivo no es un número; cuenta con el número con que empieza, o 0</translation>
    </message>
    <message>
        <source>&amp;Align by Time</source>
        <translation>&amp;Alinear por hora</translation>
    </message>
    <message>
        <source>Put files side by side by time instead of reading by reading</source>
        <translation>Poner los archivos uno junto a otro por hora en vez de lectura a lectura</translation>
    </message>
    <message>
        <source>Combine by number</source>
        <translation>Combinar por número</translation>
    </message>
    <message>
        <source>Align by time</source>
        <translation>Alinear por hora</translation>
    </message>
    <message>
        <source>&amp;Chart</source>
        <translation>&amp;Gráfico</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Atrás</translation>
    </message>
    <message>
        <source>Show the range that was shown before</source>
        <translation>Mostrar el tramo mostrado antes</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>A&amp;delante</translation>
    </message>
    <message>
        <source>Show the range again that was left by Back</source>
        <translation>Volver a mostrar el tramo dejado con Atrás</translation>
    </message>
    <message>
        <source>Show &amp;All</source>
        <translation>&amp;Mostrar todo</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Ir</translation>
    </message>
    <message>
        <source>Previous &amp;Day</source>
        <translation>&amp;Día anterior</translation>
    </message>
    <message>
        <source>Show the day before</source>
        <translation>Mostrar el día anterior</translation>
    </message>
    <message>
        <source>&amp;Next Day</source>
        <translation>Día siguie&amp;nte</translation>
    </message>
    <message>
        <source>Show the day after</source>
        <translation>Mostrar el día siguiente</translation>
    </message>
    <message>
        <source>Previous &amp;Week</source>
        <translation>&amp;Semana anterior</translation>
    </message>
    <message>
        <source>Show the week before, from Monday</source>
        <translation>Mostrar la semana anterior, desde el lunes</translation>
    </message>
    <message>
        <source>Next W&amp;eek</source>
        <translation>Semana si&amp;guiente</translation>
    </message>
    <message>
        <source>Show the week after, from Monday</source>
        <translation>Mostrar la semana siguiente, desde el lunes</translation>
    </message>
    <message>
        <source>Previous &amp;Month</source>
        <translation>&amp;Mes anterior</translation>
    </message>
    <message>
        <source>Show the month before</source>
        <translation>Mostrar el mes anterior</translation>
    </message>
    <message>
        <source>Next M&amp;onth</source>
        <translation>Mes sig&amp;uiente</translation>
    </message>
    <message>
        <source>Show the month after</source>
        <translation>Mostrar el mes siguiente</translation>
    </message>
    <message>
        <source>Loo&amp;k</source>
        <translation>Mira&amp;r</translation>
    </message>
    <message>
        <source>&amp;Enlarge</source>
        <translation>&amp;Ampliar</translation>
    </message>
    <message>
        <source>Look closer; the range stays</source>
        <translation>Mirar más de cerca; el tramo queda</translation>
    </message>
    <message>
        <source>&amp;Reduce</source>
        <translation>&amp;Reducir</translation>
    </message>
    <message>
        <source>Look from farther away</source>
        <translation>Mirar de más lejos</translation>
    </message>
    <message>
        <source>&amp;Whole Picture</source>
        <translation>Imagen &amp;entera</translation>
    </message>
    <message>
        <source>See the whole of the displayed range</source>
        <translation>Ver todo el tramo mostrado</translation>
    </message>
    <message>
        <source>&amp;Box</source>
        <translation>Re&amp;cuadro</translation>
    </message>
    <message>
        <source>Draw a box on the chart that is then looked at closely</source>
        <translation>Trazar en el gráfico un recuadro que después se ve de cerca</translation>
    </message>
    <message>
        <source>Ear&amp;lier</source>
        <translation>An&amp;tes</translation>
    </message>
    <message>
        <source>Move the picture to the left</source>
        <translation>Mover la imagen a la izquierda</translation>
    </message>
    <message>
        <source>La&amp;ter</source>
        <translation>Des&amp;pués</translation>
    </message>
    <message>
        <source>Move the picture to the right</source>
        <translation>Mover la imagen a la derecha</translation>
    </message>
    <message>
        <source>&amp;Lines</source>
        <translation>&amp;Líneas</translation>
    </message>
    <message>
        <source>Line &amp;1</source>
        <translation>Línea &amp;1</translation>
    </message>
    <message>
        <source>Line &amp;2</source>
        <translation>Línea &amp;2</translation>
    </message>
    <message>
        <source>Line &amp;3</source>
        <translation>Línea &amp;3</translation>
    </message>
    <message>
        <source>Line &amp;1: %1</source>
        <translation>Línea &amp;1: %1</translation>
    </message>
    <message>
        <source>Line &amp;2: %1</source>
        <translation>Línea &amp;2: %1</translation>
    </message>
    <message>
        <source>Line &amp;3: %1</source>
        <translation>Línea &amp;3: %1</translation>
    </message>
    <message>
        <source>Line 1</source>
        <translation>Línea 1</translation>
    </message>
    <message>
        <source>Line 2</source>
        <translation>Línea 2</translation>
    </message>
    <message>
        <source>Line 3</source>
        <translation>Línea 3</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Línea %1: %2</translation>
    </message>
    <message>
        <source>Hide or show this line</source>
        <translation>Ocultar o mostrar esta línea</translation>
    </message>
    <message>
        <source>Span F&amp;igures</source>
        <translation>Ci&amp;fras de la parte</translation>
    </message>
    <message>
        <source>Differences, extremes, mean and energy of the marked span</source>
        <translation>Diferencias, extremos, media y energía de la parte marcada</translation>
    </message>
    <message>
        <source>Fi&amp;xed Axis...</source>
        <translation>Eje fi&amp;jo...</translation>
    </message>
    <message>
        <source>Set both ends of the y axis until they are set otherwise</source>
        <translation>Fijar los dos extremos del eje y hasta que se fijen de otro modo</translation>
    </message>
    <message>
        <source>Li&amp;mit Lines...</source>
        <translation>Líneas de lími&amp;te...</translation>
    </message>
    <message>
        <source>Draw ratings across the plot</source>
        <translation>Trazar valores nominales a través de la curva</translation>
    </message>
    <message>
        <source>&amp;Picture...</source>
        <translation>Imagen (&amp;PNG, PDF)...</translation>
    </message>
    <message>
        <source>&amp;Save Chart...</source>
        <translation>&amp;Guardar gráfico...</translation>
    </message>
    <message>
        <source>&amp;Copy Ctrl+C</source>
        <translation>&amp;Copiar	Ctrl+C</translation>
    </message>
    <message>
        <source>Copy what is shown</source>
        <translation>Copiar lo que se muestra</translation>
    </message>
    <message>
        <source>Pre&amp;view...</source>
        <translation>&amp;Vista previa...</translation>
    </message>
    <message>
        <source>Show how the page will be printed</source>
        <translation>Mostrar cómo se imprimirá la página</translation>
    </message>
    <message>
        <source>Views</source>
        <translation>Vistas</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>Curva</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabla</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Potencia</translation>
    </message>
    <message>
        <source>The readings of a file</source>
        <translation>Las lecturas de un archivo</translation>
    </message>
    <message>
        <source>The facts of a file</source>
        <translation>Los datos de un archivo</translation>
    </message>
    <message>
        <source>Kilowatts of the open files</source>
        <translation>Kilovatios de los archivos abiertos</translation>
    </message>
    <message>
        <source>There are no readings after this.</source>
        <translation>No hay lecturas después.</translation>
    </message>
    <message>
        <source>There are no readings before this.</source>
        <translation>No hay lecturas antes.</translation>
    </message>
    <message>
        <source>The y axis can begin at a whole number from -32768 to 32767.</source>
        <translation>El eje y puede empezar en un número entero de -32768 a 32767.</translation>
    </message>
    <message>
        <source>%1 of at most %2 characters, about %3 s left</source>
        <translation>%1 de como máximo %2 caracteres, quedan unos %3 s</translation>
    </message>
    <message>
        <source>%1: %2, serial number %3, Vbatt = %4 volts</source>
        <translation>%1: %2, número de serie %3, Vbatt = %4 voltios</translation>
    </message>
    <message>
        <source>%1: %2, serial number %3, Vbatt = %4 volts, LOW BATTERY</source>
        <translation>%1: %2, número de serie %3, Vbatt = %4 voltios, BATERÍA BAJA</translation>
    </message>
    <message>
        <source>%1: %2, serial number %3</source>
        <translation>%1: %2, número de serie %3</translation>
    </message>
    <message>
        <source>%1: Resetting the interface. (Takes about 5 seconds)...</source>
        <translation>%1: reiniciando la interfaz. (Tarda unos 5 segundos)...</translation>
    </message>
    <message>
        <source>%1: Listening at %2 baud...</source>
        <translation>%1: escuchando a %2 baudios...</translation>
    </message>
    <message>
        <source>Leave the cable in the instrument, and a transfer switch at TRANSFER.
Nothing is sent to any port. A port takes about 10 seconds.</source>
        <translation>Deje el cable en el instrumento y un conmutador en TRANSFER.
No se envía nada a ningún puerto. Un puerto tarda unos 10 segundos.</translation>
    </message>
    <message>
        <source>No instrument was heard. Check that its cable sits firmly at both ends and that a transfer switch is set to TRANSFER, and search again.</source>
        <translation>No se oyó ningún instrumento. Compruebe que su cable esté firme en ambos extremos y que un conmutador esté en TRANSFER, y busque de nuevo.</translation>
    </message>
    <message>
        <source>One instrument was heard.</source>
        <translation>Se oyó un instrumento.</translation>
    </message>
    <message>
        <source>%1 instruments were heard.</source>
        <translation>Se oyeron %1 instrumentos.</translation>
    </message>
    <message>
        <source>No instrument was heard on an adapter. Listen on these ports too?</source>
        <translation>No se oyó ningún instrumento en un adaptador. ¿Escuchar también en estos puertos?</translation>
    </message>
    <message>
        <source>Nothing is sent, but whatever is plugged in there sees its port being opened.</source>
        <translation>No se envía nada, pero lo que haya enchufado allí ve abrirse su puerto.</translation>
    </message>
    <message>
        <source>Find Instrument</source>
        <translation>Buscar instrumento</translation>
    </message>
    <message>
        <source>&amp;Find Instrument</source>
        <translation>&amp;Buscar instrumento</translation>
    </message>
    <message>
        <source>Find instrument</source>
        <translation>Buscar instrumento</translation>
    </message>
    <message>
        <source>Listen on all adapters for an instrument</source>
        <translation>Escuchar en todos los adaptadores</translation>
    </message>
    <message>
        <source>Instruments that were heard</source>
        <translation>Instrumentos que se oyeron</translation>
    </message>
    <message>
        <source>The memory lasts %1, until %2; then the recording stops.</source>
        <translation>La memoria dura %1, hasta %2; después el registro para.</translation>
    </message>
    <message>
        <source>The memory lasts %1, until %2; then the oldest readings are overwritten.</source>
        <translation>La memoria dura %1, hasta %2; después se sobrescriben las lecturas más antiguas.</translation>
    </message>
    <message>
        <source>The memory lasts %1 days and %2 hours, until %3; then the recording stops.</source>
        <translation>La memoria dura %1 días y %2 horas, hasta %3; después el registro para.</translation>
    </message>
    <message>
        <source>The memory lasts %1 days and %2 hours, until %3; then the oldest readings are overwritten.</source>
        <translation>La memoria dura %1 días y %2 horas, hasta %3; después se sobrescriben las lecturas más antiguas.</translation>
    </message>
    <message>
        <source>How long the memory lasts</source>
        <translation>Cuánto dura la memoria</translation>
    </message>
    <message>
        <source>Listens on every free adapter, at both rates.</source>
        <translation>Escucha en cada adaptador libre, a las dos velocidades.</translation>
    </message>
    <message>
        <source>Try the simulated instrument</source>
        <translation>Probar el instrumento simulado</translation>
    </message>
    <message>
        <source>Sets it up and downloads from it.</source>
        <translation>Lo prepara y descarga de él.</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Archivos recientes</translation>
    </message>
    <message>
        <source>Not saved yet (see the notices above):</source>
        <translation>Aún sin guardar (véanse los avisos de arriba):</translation>
    </message>
    <message>
        <source>Arc&amp;hive...</source>
        <translation>Archi&amp;vo histórico...</translation>
    </message>
    <message>
        <source>Search all recordings that were ever kept</source>
        <translation>Buscar en todos los registros guardados</translation>
    </message>
    <message>
        <source>Search the archive</source>
        <translation>Buscar en el archivo histórico</translation>
    </message>
    <message>
        <source>Every recording that was kept, by circuit, serial number, note or date.</source>
        <translation>Cada registro guardado, por circuito, número de serie, nota o fecha.</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>&amp;Parar</translation>
    </message>
    <message>
        <source>Progress of the adding</source>
        <translation>Progreso de la adición</translation>
    </message>
    <message>
        <source>What was added so far stays; adding again goes on from there</source>
        <translation>Lo añadido hasta ahora queda; al añadir de nuevo se sigue desde ahí</translation>
    </message>
    <message>
        <source>Stopping...</source>
        <translation>Parando...</translation>
    </message>
    <message>
        <source>Opening the archive...</source>
        <translation>Abriendo el archivo histórico...</translation>
    </message>
    <message>
        <source>%1 recording(s) written into %2</source>
        <translation>%1 registro(s) escrito(s) en %2</translation>
    </message>
    <message>
        <source>(the password comes from the password file)</source>
        <translation>(la contraseña viene del archivo de contraseñas)</translation>
    </message>
    <message>
        <source>Place of the Archive</source>
        <translation>Lugar del archivo histórico</translation>
    </message>
    <message>
        <source>Three recordings can be open at a time; %1 are chosen.</source>
        <translation>Puede haber tres registros abiertos a la vez; hay %1 elegidos.</translation>
    </message>
    <message>
        <source>Folder for the Data Files</source>
        <translation>Carpeta de los archivos de datos</translation>
    </message>
    <message>
        <source>%1 recording(s) are no longer in the archive.</source>
        <translation>%1 registro(s) ya no están en el archivo histórico.</translation>
    </message>
    <message>
        <source>Add Data Files</source>
        <translation>Añadir archivos de datos</translation>
    </message>
    <message>
        <source>Add a Folder</source>
        <translation>Añadir una carpeta</translation>
    </message>
    <message>
        <source>&amp;Downloads and saves go in by themselves</source>
        <translation>Las &amp;descargas y lo guardado entran por sí solos</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archivo histórico</translation>
    </message>
    <message>
        <source>Archive - Tallyline</source>
        <translation>Archivo histórico - Tallyline</translation>
    </message>
    <message>
        <source>&amp;Recordings</source>
        <translation>&amp;Registros</translation>
    </message>
    <message>
        <source>&amp;Calendar</source>
        <translation>&amp;Calendario</translation>
    </message>
    <message>
        <source>&amp;Growth</source>
        <translation>Creci&amp;miento</translation>
    </message>
    <message>
        <source>Add &amp;Files...</source>
        <translation>Añadir &amp;archivos...</translation>
    </message>
    <message>
        <source>Keep data files and their notes in the archive</source>
        <translation>Guardar archivos de datos y sus notas en el archivo histórico</translation>
    </message>
    <message>
        <source>Add F&amp;older...</source>
        <translation>Añadir carpe&amp;ta...</translation>
    </message>
    <message>
        <source>Keep all data files of a folder and of the folders below it</source>
        <translation>Guardar todos los archivos de datos de una carpeta y de las que contiene</translation>
    </message>
    <message>
        <source>Pla&amp;ce...</source>
        <translation>&amp;Lugar...</translation>
    </message>
    <message>
        <source>Use another archive</source>
        <translation>Usar otro archivo histórico</translation>
    </message>
    <message>
        <source>Open up to three recordings in the main window</source>
        <translation>Abrir hasta tres registros en la ventana principal</translation>
    </message>
    <message>
        <source>Open up to three recordings and study them</source>
        <translation>Abrir hasta tres registros y estudiarlos</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportar...</translation>
    </message>
    <message>
        <source>Write the data files and notes of the chosen recordings into a folder</source>
        <translation>Escribir los archivos de datos y las notas de los registros elegidos en una carpeta</translation>
    </message>
    <message>
        <source>&amp;Assign...</source>
        <translation>A&amp;signar...</translation>
    </message>
    <message>
        <source>Correct station and circuit of the chosen recordings</source>
        <translation>Corregir estación y circuito de los registros elegidos</translation>
    </message>
    <message>
        <source>Print &amp;List...</source>
        <translation>&amp;Imprimir lista...</translation>
    </message>
    <message>
        <source>Print the chosen recordings as a list, or all that are shown</source>
        <translation>Imprimir como lista los registros elegidos, o todos los mostrados</translation>
    </message>
    <message>
        <source>Recordings are still being added to the archive.
Stop? What was added so far stays; adding again goes on from there.</source>
        <translation>Aún se están añadiendo registros al archivo histórico.
¿Parar? Lo añadido hasta ahora queda; al añadir de nuevo se sigue desde ahí.</translation>
    </message>
    <message>
        <source>%1 recording(s), %2 circuit(s)</source>
        <translation>%1 registro(s), %2 circuito(s)</translation>
    </message>
    <message>
        <source>%1 recording(s), %2 circuit(s), %3 to %4</source>
        <translation>%1 registro(s), %2 circuito(s), de %3 a %4</translation>
    </message>
    <message>
        <source>More than %1 recordings; the first %1 are shown. Narrow the search.</source>
        <translation>Más de %1 registros; se muestran los primeros %1. Restrinja la búsqueda.</translation>
    </message>
    <message>
        <source>%1 recording(s)</source>
        <translation>%1 registro(s)</translation>
    </message>
    <message>
        <source>No recording is found</source>
        <translation>No se encuentra ningún registro</translation>
    </message>
    <message>
        <source>The archive is empty. Add files, or a folder of recordings.</source>
        <translation>El archivo histórico está vacío. Añada archivos o una carpeta de registros.</translation>
    </message>
    <message>
        <source>Make an Archive Here</source>
        <translation>Crear aquí un archivo histórico</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Intentar de nuevo</translation>
    </message>
    <message>
        <source>Other Place...</source>
        <translation>Otro lugar...</translation>
    </message>
    <message>
        <source>The archive cannot be used now.</source>
        <translation>El archivo histórico no se puede usar ahora.</translation>
    </message>
    <message>
        <source>%1 recording(s) get this station and circuit.
The files themselves are not altered; without an assignment the names are those of the notes.</source>
        <translation>%1 registro(s) reciben esta estación y este circuito.
Los archivos no se alteran; sin asignación, los nombres son los de las notas.</translation>
    </message>
    <message>
        <source>&amp;Station</source>
        <translation>&amp;Estación</translation>
    </message>
    <message>
        <source>&amp;Circuit</source>
        <translation>&amp;Circuito</translation>
    </message>
    <message>
        <source>Calendar of coverage</source>
        <translation>Calendario de cobertura</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 días</translation>
    </message>
    <message>
        <source>Peak and mean by year</source>
        <translation>Punta y media por año</translation>
    </message>
    <message>
        <source>Growth by year</source>
        <translation>Crecimiento por año</translation>
    </message>
    <message>
        <source>Choose a recording in the list: the growth of its circuit is shown here.</source>
        <translation>Elija un registro en la lista: aquí se muestra el crecimiento de su circuito.</translation>
    </message>
    <message>
        <source>%1: %2 recording(s)</source>
        <translation>%1: %2 registro(s)</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Registros</translation>
    </message>
    <message>
        <source>Search words</source>
        <translation>Palabras buscadas</translation>
    </message>
    <message>
        <source>Words of station, circuit, serial number, notes, file or folder</source>
        <translation>Palabras de estación, circuito, número de serie, notas, archivo o carpeta</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Amperes and volts</source>
        <translation>Amperios y voltios</translation>
    </message>
    <message>
        <source>Amperes</source>
        <translation>Amperios</translation>
    </message>
    <message>
        <source>Volts</source>
        <translation>Voltios</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>&amp;De</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>&amp;A</translation>
    </message>
    <message>
        <source>A day, a month or a year: 2009-03-15, 2009-03 or 2009</source>
        <translation>Un día, un mes o un año: 2009-03-15, 2009-03 o 2009</translation>
    </message>
    <message>
        <source>(from the archive)</source>
        <translation>(del archivo histórico)</translation>
    </message>
    <message>
        <source>data files</source>
        <translation>archivos de datos</translation>
    </message>
    <message>
        <source>chart files</source>
        <translation>archivos de gráfico</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>PNG picture</source>
        <translation>imagen PNG</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>archivos PDF</translation>
    </message>
    <message>
        <source>The recovered data has the following error(s):</source>
        <translation>Los datos recuperados tienen estos errores:</translation>
    </message>
    <message>
        <source>• %1 reading(s) that are no numbers</source>
        <translation>• %1 lectura(s) que no son números</translation>
    </message>
    <message>
        <source>The time at which it stopped is worked out from the number of readings.
Recover it again before you initialize the instrument.</source>
        <translation>La hora de parada se calcula a partir del número de lecturas.
Recupere de nuevo antes de inicializar el instrumento.</translation>
    </message>
    <message>
        <source>Mode setting: FAIL; value is %1 ; invalid Time On: %2 (%3) Condition:</source>
        <translation>Modo: FALLO; valor %1 ; no válido Encendido: %2 (%3) Estado:</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Readings...</source>
        <translation>&amp;Lecturas...</translation>
    </message>
    <message>
        <source>Write readings, columns and range as you choose, for a spreadsheet</source>
        <translation>Escribir lecturas, columnas e intervalo a elección para una hoja de cálculo</translation>
    </message>
    <message>
        <source>Export Readings</source>
        <translation>Exportar lecturas</translation>
    </message>
    <message>
        <source>Everything: %1 readings, %2 to %3</source>
        <translation>Todo: %1 lecturas, de %2 a %3</translation>
    </message>
    <message>
        <source>Everything: %1 reading, %2 to %3</source>
        <translation>Todo: %1 lectura, de %2 a %3</translation>
    </message>
    <message>
        <source>What is shown: %1 readings, %2 to %3</source>
        <translation>Lo mostrado: %1 lecturas, de %2 a %3</translation>
    </message>
    <message>
        <source>What is shown: %1 reading, %2 to %3</source>
        <translation>Lo mostrado: %1 lectura, de %2 a %3</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Intervalo</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Te&amp;xt for any spreadsheet (CSV)</source>
        <translation>Te&amp;xto para cualquier hoja de cálculo (CSV)</translation>
    </message>
    <message>
        <source>&amp;Workbook with a chart (XLSX)</source>
        <translation>&amp;Libro con gráfico (XLSX)</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Coma</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Punto y coma</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulador</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punto</translation>
    </message>
    <message>
        <source>Se&amp;parator</source>
        <translation>Se&amp;parador</translation>
    </message>
    <message>
        <source>&amp;Decimal sign</source>
        <translation>Signo &amp;decimal</translation>
    </message>
    <message>
        <source>&amp;Time</source>
        <translation>&amp;Hora</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;Guardar como...</translation>
    </message>
    <message>
        <source>%1 saved OK
It took the place of an earlier file.</source>
        <translation>%1 guardado
Sustituye a un archivo anterior.</translation>
    </message>
    <message>
        <source>Workbook</source>
        <translation>Libro</translation>
    </message>
</context>
</TS>
