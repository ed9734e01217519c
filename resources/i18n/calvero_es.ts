<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Calvero</name>
    <message>
        <source>Click next to continue</source>
        <translation>Haga clic en «Siguiente» para continuar</translation>
    </message>
    <message>
        <source>Drive Name :</source>
        <translation>Nombre de la unidad:</translation>
    </message>
    <message>
        <source>File System :</source>
        <translation>Sistema de archivos:</translation>
    </message>
    <message>
        <source>Drive Space :</source>
        <translation>Capacidad:</translation>
    </message>
    <message>
        <source>Free Space :</source>
        <translation>Espacio libre:</translation>
    </message>
    <message>
        <source>Reload Drives</source>
        <translation>Recargar unidades</translation>
    </message>
    <message>
        <source>Select wiping method</source>
        <translation>Seleccione el método de borrado</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Bajo</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medio</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alto</translation>
    </message>
    <message>
        <source>Fast Zero Write (Wipes data with 0's (Zero))</source>
        <translation>Escritura rápida de ceros (sobrescribe los datos con ceros)</translation>
    </message>
    <message>
        <source>Random </source>
        <translation>Aleatorio </translation>
    </message>
    <message>
        <source>DOD 5220.22.M (US Dept. of Defence Standard) </source>
        <translation>DOD 5220.22.M (norma del Departamento de Defensa de EE. UU.) </translation>
    </message>
    <message>
        <source>N.A.V.S.O.- RLL (US Navy Standard) </source>
        <translation>N.A.V.S.O.- RLL (norma de la Marina de EE. UU.) </translation>
    </message>
    <message>
        <source>N.A.T.O. (North Atlantic Treaty Organization  Standard)</source>
        <translation>N.A.T.O. (norma de la Alianza Atlántica)</translation>
    </message>
    <message>
        <source>V.S.I.T.R.  (German Standard) </source>
        <translation>V.S.I.T.R. (norma alemana) </translation>
    </message>
    <message>
        <source>Peter Guttman Method</source>
        <translation>Método de Peter Guttman</translation>
    </message>
    <message>
        <source>Peter Guttman + (DoD 5220.22-M)</source>
        <translation>Peter Guttman + (DoD 5220.22-M)</translation>
    </message>
    <message>
        <source>Unsecured Data: </source>
        <translation>Datos sin proteger: </translation>
    </message>
    <message>
        <source>Erasing free space data securely</source>
        <translation>Borrado seguro del espacio libre</translation>
    </message>
    <message>
        <source>Elapsed Time:</source>
        <translation>Tiempo transcurrido:</translation>
    </message>
    <message>
        <source>Erased Data:</source>
        <translation>Datos borrados:</translation>
    </message>
    <message>
        <source>Free Space:</source>
        <translation>Espacio libre:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Cloud Control </source>
        <translation>Control en la nube </translation>
    </message>
    <message>
        <source>Cloud Control</source>
        <translation>Control en la nube</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Proceed</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Ondrel More</source>
        <translation>Ondrel More</translation>
    </message>
    <message>
        <source>Alert!!</source>
        <translation>¡Atención!</translation>
    </message>
    <message>
        <source>Are you sure , you want to erase the free space of selected drive?</source>
        <translation>¿Seguro que desea borrar el espacio libre de la unidad seleccionada?</translation>
    </message>
    <message>
        <source>YES</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Please!! 
 Close all the files related to drive , as well as do not add any data to drive during process.</source>
        <translation>¡Importante!
Cierre todos los archivos de esta unidad y no le añada datos durante el proceso.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Unknown Error Occured</source>
        <translation>Se ha producido un error desconocido</translation>
    </message>
    <message>
        <source>Relaunch the application</source>
        <translation>Reiniciar la aplicación</translation>
    </message>
    <message>
        <source>Read only drive, please select other drives</source>
        <translation>Esta unidad es de solo lectura. Seleccione otra unidad.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Wiping process aborted</source>
        <translation>El proceso de borrado se ha interrumpido</translation>
    </message>
    <message>
        <source>Wiping process is On</source>
        <translation>El proceso de borrado está en curso</translation>
    </message>
    <message>
        <source>Cancel wiping and then quit the application</source>
        <translation>Cancele el borrado y después cierre la aplicación.</translation>
    </message>
    <message>
        <source>Phase 1: Analyzing Data..</source>
        <translation>Fase 1: analizando los datos…</translation>
    </message>
    <message>
        <source>Phase 2: Securely Erasing Data..</source>
        <translation>Fase 2: borrando los datos de forma segura…</translation>
    </message>
    <message>
        <source>Please wait, finishing current process..</source>
        <translation>Espere, finalizando el proceso actual…</translation>
    </message>
    <message>
        <source>Your admin successfuly completed
 Calvero on:%@</source>
        <translation>Su administrador ha ejecutado Calvero correctamente
en: %@</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Get it now</source>
        <translation>Obtener ahora</translation>
    </message>
    <message>
        <source>Facebook</source>
        <translation>Facebook</translation>
    </message>
    <message>
        <source>Twitter</source>
        <translation>Twitter</translation>
    </message>
    <message>
        <source>Google+</source>
        <translation>Google+</translation>
    </message>
    <message>
        <source>Drives</source>
        <translation>Unidades</translation>
    </message>
    <message>
        <source>Select a drive</source>
        <translation>Seleccione una unidad</translation>
    </message>
    <message>
        <source>Mount Path :</source>
        <translation>Ruta de montaje:</translation>
    </message>
    <message>
        <source>Fixed drive</source>
        <translation>Unidad fija</translation>
    </message>
    <message>
        <source>Removable drive</source>
        <translation>Unidad extraíble</translation>
    </message>
    <message>
        <source>Network drive</source>
        <translation>Unidad de red</translation>
    </message>
    <message>
        <source>No drives found</source>
        <translation>No se han encontrado unidades</translation>
    </message>
    <message>
        <source>Connect a drive, then press &quot;Reload Drives&quot;.</source>
        <translation>Conecte una unidad y, a continuación, pulse «Recargar unidades».</translation>
    </message>
    <message>
        <source>Space to be erased: </source>
        <translation>Espacio que se borrará: </translation>
    </message>
    <message>
        <source>Passes: %1</source>
        <translation>Pasadas: %1</translation>
    </message>
    <message>
        <source>Writes nothing</source>
        <translation>No escribe nada</translation>
    </message>
    <message>
        <source>Writes nothing: the free space is laid out and given back as it was.</source>
        <translation>No escribe nada: el espacio libre se reserva y se devuelve tal como estaba.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>%1 of free space on %2 have been overwritten.</source>
        <translation>Se han sobrescrito %1 de espacio libre en %2.</translation>
    </message>
    <message>
        <source>Only %1 of %2 of free space on %3 have been overwritten. Deleted data may still be readable there.</source>
        <translation>Solo se han sobrescrito %1 de %2 de espacio libre en %3. Es posible que en ella aún se puedan leer datos eliminados.</translation>
    </message>
    <message>
        <source>Nothing was overwritten: this method writes no data.</source>
        <translation>No se ha sobrescrito nada: este método no escribe datos.</translation>
    </message>
    <message>
        <source>Part of the free space of %1 could not be erased. Deleted data may still be readable there.</source>
        <translation>No se ha podido borrar una parte del espacio libre de %1. Es posible que allí aún se puedan leer datos eliminados.</translation>
    </message>
    <message>
        <source>The free space has been erased, but &quot;%1&quot; could not be removed. Change the permissions and remove it, or erase the drive again.</source>
        <translation>Se ha borrado el espacio libre, pero no se ha podido eliminar «%1». Cambie los permisos y elimine la carpeta, o vuelva a borrar la unidad.</translation>
    </message>
    <message>
        <source>The drive %1 was removed or has failed. Deleted data may still be readable on it.</source>
        <translation>La unidad %1 se ha retirado o ha fallado. Es posible que en ella aún se puedan leer datos eliminados.</translation>
    </message>
    <message>
        <source>The storage behind the drive %1 is full or failing. Make room there before the drive is removed. Deleted data may still be readable on the drive.</source>
        <translation>El almacenamiento que hay detrás de la unidad %1 está lleno o falla. Libere espacio en él antes de extraer la unidad. Es posible que en la unidad aún se puedan leer datos eliminados.</translation>
    </message>
    <message>
        <source>There is no drive to erase.</source>
        <translation>No hay ninguna unidad cuyo espacio libre se pueda borrar.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or ask its administrator.</source>
        <translation>No tiene permiso para escribir en esta unidad. Seleccione otra unidad o consulte a su administrador.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or run this command in a terminal to erase its free space as administrator.</source>
        <translation>No tiene permiso para escribir en esta unidad. Seleccione otra unidad o ejecute este comando en un terminal para borrar su espacio libre como administrador.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. A user can change the program %1, so it must not be started as administrator. Have the administrator install Calvero, then try again.</source>
        <translation>No tiene permiso para escribir en esta unidad. Un usuario puede modificar el programa %1, por lo que no debe iniciarse como administrador. Pida al administrador que instale Calvero e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>Copiar comando</translation>
    </message>
    <message>
        <source>This drive is being erased by another process. Wait until it has ended, or select another drive.</source>
        <translation>Otro proceso está borrando el espacio libre de esta unidad. Espere a que termine o seleccione otra unidad.</translation>
    </message>
    <message>
        <source>This drive is not connected any more. Press &quot;Reload Drives&quot;.</source>
        <translation>Esta unidad ya no está conectada. Pulse «Recargar unidades».</translation>
    </message>
    <message>
        <source>This drive does not respond. Check its connection, then press &quot;Reload Drives&quot;.</source>
        <translation>Esta unidad no responde. Compruebe su conexión y, a continuación, pulse «Recargar unidades».</translation>
    </message>
    <message>
        <source>The storage below this drive has less room than the drive shows. Make room there, or select another drive.</source>
        <translation>El almacenamiento en el que se encuentra esta unidad tiene menos espacio del que muestra la unidad. Libere espacio allí o seleccione otra unidad.</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that was not made by Calvero. Rename or remove it, then try again.</source>
        <translation>Esta unidad contiene una carpeta «%1» que no ha creado Calvero. Cámbiele el nombre o elimínela e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that an earlier run left and that is locked. Unlock or remove it, then try again.</source>
        <translation>Esta unidad contiene una carpeta «%1» que dejó un proceso anterior y que está bloqueada. Desbloquéela o elimínela e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Continues to the erase methods.</source>
        <translation>Continúa con los métodos de borrado.</translation>
    </message>
    <message>
        <source>Returns to the drives.</source>
        <translation>Vuelve a las unidades.</translation>
    </message>
    <message>
        <source>Starts erasing, after a question.</source>
        <translation>Inicia el borrado tras pedir confirmación.</translation>
    </message>
    <message>
        <source>Stops erasing and removes the temporary files.</source>
        <translation>Detiene el borrado y elimina los archivos temporales.</translation>
    </message>
    <message>
        <source>Lists the connected drives again.</source>
        <translation>Actualiza la lista de unidades conectadas.</translation>
    </message>
    <message>
        <source>Closes Calvero and opens Ondrel MORE.</source>
        <translation>Cierra Calvero y abre Ondrel MORE.</translation>
    </message>
    <message>
        <source>Opens the help page in the web browser.</source>
        <translation>Abre la página de ayuda en el navegador web.</translation>
    </message>
    <message>
        <source>Opens the cloud portal in the web browser.</source>
        <translation>Abre el portal en la nube en el navegador web.</translation>
    </message>
    <message>
        <source>Opens the page in the web browser.</source>
        <translation>Abre la página en el navegador web.</translation>
    </message>
    <message>
        <source>Choose the drive whose free space is to be erased.</source>
        <translation>Elija la unidad cuyo espacio libre desea borrar.</translation>
    </message>
</context>
</TS>
