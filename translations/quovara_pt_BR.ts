<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>ArchiveTotals</name>
    <message>
        <source>Files: %1</source>
        <translation>Arquivos: %1</translation>
    </message>
    <message>
        <source>Normal size: %1 MB</source>
        <translation>Tamanho normal: %1 MB</translation>
    </message>
    <message>
        <source>Packed size: %1 MB</source>
        <translation>Tamanho compactado: %1 MB</translation>
    </message>
    <message>
        <source>Mode: %1</source>
        <translation>Modo: %1</translation>
    </message>
</context>
<context>
    <name>Confinement</name>
    <message>
        <source>the destination %1 is not a folder</source>
        <translation>o destino %1 não é uma pasta</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>não é possível criar a pasta %1</translation>
    </message>
    <message>
        <source>cannot link a drive to %1: %2</source>
        <translation>não é possível vincular uma unidade a %1: %2</translation>
    </message>
    <message>
        <source>no drive letter of the engine&apos;s prefix is free</source>
        <translation>nenhuma letra de unidade do prefixo do mecanismo está livre</translation>
    </message>
    <message>
        <source>this system has no Landlock</source>
        <translation>este sistema não tem Landlock</translation>
    </message>
    <message>
        <source>cannot make a Landlock rule set: %1</source>
        <translation>não é possível criar um conjunto de regras Landlock: %1</translation>
    </message>
    <message>
        <source>cannot confine the job to %1: %2</source>
        <translation>não é possível confinar a tarefa a %1: %2</translation>
    </message>
</context>
<context>
    <name>Convert</name>
    <message>
        <source>The conversion was stopped.</source>
        <translation>A conversão foi interrompida.</translation>
    </message>
    <message>
        <source>The archive&apos;s listing holds no files.</source>
        <translation>A listagem do arquivo compactado não contém arquivos.</translation>
    </message>
    <message>
        <source>The new archive was written and checked, but %1; nothing was left behind.</source>
        <translation>O novo arquivo compactado foi gravado e verificado, mas %1; nada foi deixado para trás.</translation>
    </message>
    <message numerus="yes">
        <source>  and %n more</source>
        <translation>
            <numerusform>  e mais %n</numerusform>
            <numerusform>  e mais %n</numerusform>
        </translation>
    </message>
    <message>
        <source>The engine did not extract these entries of the listing:
%1</source>
        <translation>O mecanismo não extraiu estas entradas da listagem:
%1</translation>
    </message>
    <message>
        <source>These entries were extracted with another size or CRC-32 than the listing gives:
%1</source>
        <translation>Estas entradas foram extraídas com tamanho ou CRC-32 diferente do indicado na listagem:
%1</translation>
    </message>
    <message>
        <source>The engine extracted files the listing does not have:
%1</source>
        <translation>O mecanismo extraiu arquivos que não constam na listagem:
%1</translation>
    </message>
    <message>
        <source>%1 (size %2, CRC-32 %3; listed: size %4, CRC-32 %5)</source>
        <translation>%1 (tamanho %2, CRC-32 %3; na listagem: tamanho %4, CRC-32 %5)</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>erro desconhecido</translation>
    </message>
    <message>
        <source>%1 cannot be read (%2)</source>
        <translation>%1 não pode ser lido (%2)</translation>
    </message>
    <message>
        <source>%1 changed after it was checked</source>
        <translation>%1 foi alterado depois de verificado</translation>
    </message>
    <message>
        <source>%1 cannot be created (%2)</source>
        <translation>%1 não pode ser criado (%2)</translation>
    </message>
    <message>
        <source>This system&apos;s libarchive cannot write %1 (%2)</source>
        <translation>A libarchive deste sistema não consegue gravar %1 (%2)</translation>
    </message>
    <message>
        <source>%1 cannot be written (%2)</source>
        <translation>%1 não pode ser gravado (%2)</translation>
    </message>
    <message>
        <source>The new archive cannot be read back (%1).</source>
        <translation>O novo arquivo compactado não pode ser relido (%1).</translation>
    </message>
    <message>
        <source>The new archive holds %1 entries where %2 were written.</source>
        <translation>O novo arquivo compactado contém %1 entradas, mas foram gravadas %2.</translation>
    </message>
    <message>
        <source>The new archive does not read back as written: %1.</source>
        <translation>O novo arquivo compactado não é relido como foi gravado: %1.</translation>
    </message>
    <message>
        <source>Nothing was converted: no password was given.</source>
        <translation>Nada foi convertido: nenhuma senha foi informada.</translation>
    </message>
    <message>
        <source>The new archive will not be protected by a password.</source>
        <translation>O novo arquivo compactado não será protegido por senha.</translation>
    </message>
    <message>
        <source>Nothing was converted: %1.</source>
        <translation>Nada foi convertido: %1.</translation>
    </message>
    <message>
        <source>Nothing was converted: these entries have names that would leave any folder they were extracted to, so the archive cannot be converted whole:
%1</source>
        <translation>Nada foi convertido: estas entradas têm nomes que sairiam de qualquer pasta para a qual fossem extraídas, por isso o arquivo compactado não pode ser convertido por inteiro:
%1</translation>
    </message>
    <message>
        <source>Nothing was converted. %1</source>
        <translation>Nada foi convertido. %1</translation>
    </message>
    <message>
        <source>These archives were not converted:

%1</source>
        <translation>Estes arquivos compactados não foram convertidos:

%1</translation>
    </message>
</context>
<context>
    <name>DialogText</name>
    <message>
        <source>File types</source>
        <translation>Tipos de arquivo</translation>
    </message>
    <message>
        <source>List file</source>
        <translation>Arquivo de lista</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Arquivos excluídos</translation>
    </message>
    <message>
        <source>File to Extract</source>
        <translation>Arquivo a extrair</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>Todos os arquivos</translation>
    </message>
    <message>
        <source>By File List (Full Path)</source>
        <translation>Por lista de arquivos (caminho completo)</translation>
    </message>
    <message>
        <source>Exclude: (e.g: *.dll *.exe)</source>
        <translation>Excluir: (ex.: *.dll *.exe)</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Senha</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Quovara needs a graphical display; DISPLAY or WAYLAND_DISPLAY is not set</source>
        <translation>O Quovara precisa de uma tela gráfica; DISPLAY ou WAYLAND_DISPLAY não está definida</translation>
    </message>
</context>
<context>
    <name>EngineError</name>
    <message>
        <source>%1</source>
        <extracomment>%1 is the engine&apos;s own error text, in English as the engine writes it, e.g. &quot;Can&apos;t read from archive file / Unexpected end of file (maybe corrupt)&quot;. The English source shows it alone; a translation puts it after a sentence saying the engine reported it.</extracomment>
        <translation>O mecanismo relatou um erro:

%1</translation>
    </message>
</context>
<context>
    <name>EngineInstall</name>
    <message>
        <source>cannot set the permissions of %1</source>
        <translation>não é possível definir as permissões de %1</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>%1 não pôde ser iniciado: %2</translation>
    </message>
    <message>
        <source>Usage: quovara %1 FILE...
Copies the engine files into Quovara&apos;s program folder. Expected names: %2 (in any case).
</source>
        <translation>Uso: quovara %1 FILE...
Copia os arquivos do mecanismo para a pasta do programa do Quovara. Nomes esperados: %2 (maiúsculas ou minúsculas).
</translation>
    </message>
    <message>
        <source>Not an engine file: %1
Expected names: %2 (in any case).
</source>
        <translation>Não é um arquivo do mecanismo: %1
Nomes esperados: %2 (maiúsculas ou minúsculas).
</translation>
    </message>
    <message>
        <source>No such file: %1
</source>
        <translation>Arquivo inexistente: %1
</translation>
    </message>
    <message>
        <source>Could not copy %1 to %2: %3
</source>
        <translation>Não foi possível copiar %1 para %2: %3
</translation>
    </message>
    <message>
        <source>Installed %1
</source>
        <translation>Instalado: %1
</translation>
    </message>
    <message>
        <source>The engine runs: %1
</source>
        <translation>O mecanismo funciona: %1
</translation>
    </message>
    <message>
        <source>The engine runs through %1: %2
</source>
        <translation>O mecanismo funciona por meio de %1: %2
</translation>
    </message>
    <message>
        <source>It runs in the wine prefix %1 under the locale %2: code page %3 for its text and the names it stores, %4 for the names it reads.
</source>
        <translation>Ele é executado no prefixo do wine %1 com a localidade %2: página de código %3 para seus textos e os nomes que armazena, %4 para os nomes que lê.
</translation>
    </message>
    <message>
        <source>Note: Quovara now uses the engine in %1, which holds a uharc.exe of its own.
</source>
        <translation>Observação: o Quovara agora usa o mecanismo em %1, que contém um uharc.exe próprio.
</translation>
    </message>
    <message>
        <source>There is no uharc.exe in %1: Quovara needs it. Install it with: quovara %2 /path/to/uharc.exe
</source>
        <translation>Não há uharc.exe em %1: o Quovara precisa dele. Instale-o com: quovara %2 /path/to/uharc.exe
</translation>
    </message>
    <message>
        <source>wine was not found (set QUOVARA_WINE to the launcher, or put wine on the PATH): Quovara runs the engine, a Windows program, with it.
On Debian, install it with:
    %1
</source>
        <translation>O wine não foi encontrado (defina QUOVARA_WINE com o inicializador ou coloque o wine no PATH): é com ele que o Quovara executa o mecanismo, um programa do Windows.
No Debian, instale-o com:
    %1
</translation>
    </message>
    <message>
        <source>%1 cannot run the engine %2: its 32-bit part is missing.
</source>
        <translation>%1 não consegue executar o mecanismo %2: falta a parte de 32 bits.
</translation>
    </message>
    <message>
        <source>On Debian, install it with:
    %1
</source>
        <translation>No Debian, instale-o com:
    %1
</translation>
    </message>
    <message>
        <source>The engine %1 did not print its banner.
</source>
        <translation>O mecanismo %1 não exibiu seu banner.
</translation>
    </message>
    <message>
        <source>The engine %1 did not print its banner through %2.
</source>
        <translation>O mecanismo %1 não exibiu seu banner por meio de %2.
</translation>
    </message>
</context>
<context>
    <name>EngineLocale</name>
    <message>
        <source>The locale %1 is not installed on this system, so the engine cannot read or write names in its letters. Add it with
sudo sed -i &apos;s/^# *%1 /%1 /&apos; /etc/locale.gen &amp;&amp; sudo locale-gen
(or &quot;sudo dpkg-reconfigure locales&quot;) and start Quovara again.</source>
        <translation>A localidade %1 não está instalada neste sistema, por isso o mecanismo não consegue ler nem gravar nomes com as letras dela. Adicione-a com
sudo sed -i &apos;s/^# *%1 /%1 /&apos; /etc/locale.gen &amp;&amp; sudo locale-gen
(ou &quot;sudo dpkg-reconfigure locales&quot;) e inicie o Quovara novamente.</translation>
    </message>
    <message>
        <source>code page %1 (the locale %2)</source>
        <translation>página de código %1 (a localidade %2)</translation>
    </message>
</context>
<context>
    <name>EngineVersion</name>
    <message>
        <source>Engine: none in %1 (quovara --install-engine puts it there)
</source>
        <translation>Mecanismo: nenhum em %1 (quovara --install-engine o coloca lá)
</translation>
    </message>
    <message>
        <source>Engine: UHARC, version not known (Windows program, run through wine) in %1
</source>
        <translation>Mecanismo: UHARC, versão desconhecida (programa do Windows, executado pelo wine) em %1
</translation>
    </message>
    <message>
        <source>Engine: demonstration stand-in, version not known (not UHARC) in %1
</source>
        <translation>Mecanismo: substituto de demonstração, versão desconhecida (não é o UHARC) em %1
</translation>
    </message>
    <message>
        <source>Engine: UHARC %1 (Windows program, run through wine) in %2
</source>
        <translation>Mecanismo: UHARC %1 (programa do Windows, executado pelo wine) em %2
</translation>
    </message>
    <message>
        <source>Engine: demonstration stand-in %1 (not UHARC) in %2
</source>
        <translation>Mecanismo: substituto de demonstração %1 (não é o UHARC) em %2
</translation>
    </message>
    <message>
        <source>Stored engine versions: %1
</source>
        <translation>Versões do mecanismo armazenadas: %1
</translation>
    </message>
</context>
<context>
    <name>ExtractHere</name>
    <message>
        <source>the folder %1 cannot be written to (%2)</source>
        <translation>não é possível gravar na pasta %1 (%2)</translation>
    </message>
    <message>
        <source>it could not be moved to %1 (%2)</source>
        <translation>não foi possível movê-lo para %1 (%2)</translation>
    </message>
    <message>
        <source>no free name was found for %1</source>
        <translation>nenhum nome livre foi encontrado para %1</translation>
    </message>
    <message>
        <source>%1:
%2</source>
        <translation>%1:
%2</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>O arquivo não existe.</translation>
    </message>
    <message>
        <source>This is not a UHARC archive (.uha).</source>
        <translation>Este não é um arquivo compactado UHARC (.uha).</translation>
    </message>
    <message>
        <source>Nothing was extracted: %1.</source>
        <translation>Nada foi extraído: %1.</translation>
    </message>
    <message>
        <source>Nothing was extracted: no password was given.</source>
        <translation>Nada foi extraído: nenhuma senha foi informada.</translation>
    </message>
    <message>
        <source>The files were extracted but %1; nothing was left behind.</source>
        <translation>Os arquivos foram extraídos, mas %1; nada foi deixado para trás.</translation>
    </message>
    <message>
        <source>These archives were not extracted:

%1</source>
        <translation>Estes arquivos compactados não foram extraídos:

%1</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Usage: quovara [ARCHIVE.uha]
  or:  quovara &quot;WORD  PATH&quot;
  or:  quovara &quot;WORD &quot; PATH
  or:  quovara OPTION...

Quovara browses, extracts, tests and creates UHARC archives (.uha); every
operation is a run of the UHARC engine uharc.exe, kept in the program folder.

Without arguments the main window opens on the home folder. With the path of
an archive (a name ending in .uha), the archive is opened in it.

A request word opens one window only, for PATH; Quovara ends when it closes:
</source>
        <translation>Uso: quovara [ARCHIVE.uha]
  ou:  quovara &quot;WORD  PATH&quot;
  ou:  quovara &quot;WORD &quot; PATH
  ou:  quovara OPTION...

O Quovara navega, extrai, testa e cria arquivos compactados UHARC (.uha);
cada operação é uma execução do mecanismo UHARC uharc.exe, mantido na pasta
do programa.

Sem argumentos, a janela principal abre na pasta pessoal. Com o caminho de
um arquivo compactado (um nome terminado em .uha), ele é aberto nela.

Uma palavra de pedido abre uma única janela, para PATH; o Quovara termina
quando ela é fechada:
</translation>
    </message>
    <message>
        <source>the Extract window for the archive PATH</source>
        <translation>a janela Extrair para o arquivo compactado PATH</translation>
    </message>
    <message>
        <source>the Add window for the file or folder PATH</source>
        <translation>a janela Adicionar para o arquivo ou a pasta PATH</translation>
    </message>
    <message>
        <source>the Make SFX window for the archive PATH</source>
        <translation>a janela Criar SFX para o arquivo compactado PATH</translation>
    </message>
    <message>
        <source>The arguments are joined with single blanks, and the word is followed by two
separator characters before the path: two blanks inside one argument
(&quot;extract  /data/a.uha&quot;), or a blank at the end of the word and the path as
the next argument (&quot;extract &quot; /data/a.uha).

Options:
</source>
        <translation>Os argumentos são unidos com espaços simples, e a palavra é seguida de dois
caracteres separadores antes do caminho: dois espaços dentro de um argumento
(&quot;extract  /data/a.uha&quot;), ou um espaço no fim da palavra e o caminho como
argumento seguinte (&quot;extract &quot; /data/a.uha).

Opções:
</translation>
    </message>
    <message>
        <source>end of the options: every argument after it is a request word or a path, even one that starts with &quot;-&quot; (a path can also be written ./-name.uha)</source>
        <translation>fim das opções: todo argumento depois dele é uma palavra de pedido ou um caminho, mesmo que comece com &quot;-&quot; (um caminho também pode ser escrito ./-name.uha)</translation>
    </message>
    <message>
        <source>
Qt&apos;s own options, such as -platform NAME, are taken too. Without one, or
QT_QPA_PLATFORM, a window needs DISPLAY or WAYLAND_DISPLAY.

Exit status: 0 when done; 1 without a graphical display; 2 for an unknown or
misused option. --install-engine ends with 0 to 3, as quovara(1) says.
</source>
        <translation>
As opções próprias do Qt, como -platform NAME, também são aceitas. Sem uma
delas, ou sem QT_QPA_PLATFORM, uma janela precisa de DISPLAY ou
WAYLAND_DISPLAY.

Status de saída: 0 quando concluído; 1 sem tela gráfica; 2 para uma opção
desconhecida ou mal usada. --install-engine termina com 0 a 3, conforme
quovara(1).
</translation>
    </message>
</context>
<context>
    <name>JobProcess</name>
    <message>
        <source>the engine %1 does not exist</source>
        <translation>o mecanismo %1 não existe</translation>
    </message>
    <message>
        <source>the job names %1, which is not the engine of the program folder %2; it was not started</source>
        <translation>a tarefa indica %1, que não é o mecanismo da pasta do programa %2; ela não foi iniciada</translation>
    </message>
    <message>
        <source>the list file %1 cannot be read: %2</source>
        <translation>o arquivo de lista %1 não pode ser lido: %2</translation>
    </message>
    <message>
        <source>the list file %1 names a file the engine cannot take. %2</source>
        <translation>o arquivo de lista %1 indica um arquivo que o mecanismo não aceita. %2</translation>
    </message>
    <message>
        <source>the list file&apos;s copy %1 cannot be written: %2</source>
        <translation>a cópia %1 do arquivo de lista não pode ser gravada: %2</translation>
    </message>
    <message>
        <source>the job script %1 was not written by this program</source>
        <translation>o script de tarefa %1 não foi gravado por este programa</translation>
    </message>
    <message>
        <source>cannot read the job script %1</source>
        <translation>não é possível ler o script de tarefa %1</translation>
    </message>
    <message>
        <source>the job script %1 was changed after it was written; it was not run</source>
        <translation>o script de tarefa %1 foi alterado depois de gravado; ele não foi executado</translation>
    </message>
    <message>
        <source>the job script %1 names no command</source>
        <translation>o script de tarefa %1 não indica nenhum comando</translation>
    </message>
    <message>
        <source>the job asks to write its output to %1, which is not the console output file of the work folder</source>
        <translation>a tarefa pede para gravar sua saída em %1, que não é o arquivo de saída do console da pasta de trabalho</translation>
    </message>
    <message>
        <source>%1 is a Windows program and no launcher (wine) was found</source>
        <translation>%1 é um programa do Windows e nenhum inicializador (wine) foi encontrado</translation>
    </message>
    <message>
        <source>the archive&apos;s folder cannot be given to the engine: %1</source>
        <translation>a pasta do arquivo compactado não pode ser passada ao mecanismo: %1</translation>
    </message>
    <message>
        <source>the archive cannot be given to the engine: %1</source>
        <translation>o arquivo compactado não pode ser passado ao mecanismo: %1</translation>
    </message>
    <message>
        <source>the extraction cannot be confined to its destination: %1</source>
        <translation>a extração não pode ser confinada ao seu destino: %1</translation>
    </message>
    <message>
        <source>cannot create the output file %1: %2</source>
        <translation>não é possível criar o arquivo de saída %1: %2</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>%1 não pôde ser iniciado: %2</translation>
    </message>
</context>
<context>
    <name>JobScript</name>
    <message>
        <source>archive</source>
        <translation>O arquivo compactado</translation>
    </message>
    <message>
        <source>archive name</source>
        <translation>O nome do arquivo compactado</translation>
    </message>
    <message>
        <source>command line</source>
        <translation>A linha de comando</translation>
    </message>
    <message>
        <source>destination folder</source>
        <translation>A pasta de destino</translation>
    </message>
    <message>
        <source>dictionary size</source>
        <translation>O tamanho do dicionário</translation>
    </message>
    <message>
        <source>exclusion</source>
        <translation>A exclusão</translation>
    </message>
    <message>
        <source>file type</source>
        <translation>O tipo de arquivo</translation>
    </message>
    <message>
        <source>item</source>
        <translation>O item</translation>
    </message>
    <message>
        <source>list file</source>
        <translation>O arquivo de lista</translation>
    </message>
    <message>
        <source>name</source>
        <translation>O nome</translation>
    </message>
    <message>
        <source>password</source>
        <translation>A senha</translation>
    </message>
    <message>
        <source>program folder</source>
        <translation>A pasta do programa</translation>
    </message>
    <message>
        <source>source</source>
        <translation>A origem</translation>
    </message>
    <message>
        <source>temporary folder</source>
        <translation>A pasta temporária</translation>
    </message>
    <message>
        <source>The password holds letters beyond ASCII. %1 Nothing was run.</source>
        <translation>A senha contém letras fora do ASCII. %1 Nada foi executado.</translation>
    </message>
    <message>
        <source>The %1
%2
holds letters beyond ASCII. %3 Nothing was run.</source>
        <translation>%1
%2
contém letras fora do ASCII. %3 Nada foi executado.</translation>
    </message>
    <message>
        <source>(its code pages %1 and %2 lack them)</source>
        <translation>(as páginas de código %1 e %2 dela não as têm)</translation>
    </message>
    <message>
        <source>(its code page %1 lacks them)</source>
        <translation>(a página de código %1 dela não as tem)</translation>
    </message>
    <message>
        <source>start Quovara with &quot;--archive-locale LOCALE&quot; naming a locale whose code pages have them.</source>
        <translation>inicie o Quovara com &quot;--archive-locale LOCALE&quot;, indicando uma localidade cujas páginas de código as tenham.</translation>
    </message>
    <message>
        <source>start Quovara with &quot;--archive-locale %1&quot;, a locale whose code pages have them.</source>
        <translation>inicie o Quovara com &quot;--archive-locale %1&quot;, uma localidade cujas páginas de código as têm.</translation>
    </message>
    <message>
        <source>The password holds letters that the engine cannot take under the locale %1 %2. Nothing was run. To go on, choose a password with other letters, or %3</source>
        <translation>A senha contém letras que o mecanismo não aceita na localidade %1 %2. Nada foi executado. Para continuar, escolha uma senha com outras letras ou %3</translation>
    </message>
    <message>
        <source>The %1
%2
holds letters that the engine cannot take under the locale %3%4 %5. Nothing was run. To go on, rename it with other letters, or %6</source>
        <translation>%1
%2
contém letras que o mecanismo não aceita na localidade %3%4 %5. Nada foi executado. Para continuar, mude o nome usando outras letras ou %6</translation>
    </message>
    <message>
        <source>The folder
%1
holds a line break, which a job script cannot carry. Nothing was run.</source>
        <translation>A pasta
%1
contém uma quebra de linha, que um script de tarefa não pode conter. Nada foi executado.</translation>
    </message>
    <message>
        <source>The password holds a line break, which a job line cannot carry. Nothing was run.</source>
        <translation>A senha contém uma quebra de linha, que uma linha de tarefa não pode conter. Nada foi executado.</translation>
    </message>
    <message>
        <source>The %1 holds a line break, which a job line cannot carry:
%2
Nothing was run.</source>
        <translation>%1 contém uma quebra de linha, que uma linha de tarefa não pode conter:
%2
Nada foi executado.</translation>
    </message>
    <message>
        <source>a symbolic link stands where the file belongs</source>
        <translation>há um link simbólico no lugar do arquivo</translation>
    </message>
    <message>
        <source>the file that stands where the file belongs is not ours</source>
        <translation>o arquivo que está no lugar do arquivo não é nosso</translation>
    </message>
    <message>
        <source>The job script %1 cannot be written: %2.</source>
        <translation>O script de tarefa %1 não pode ser gravado: %2.</translation>
    </message>
</context>
<context>
    <name>LauncherPaths</name>
    <message>
        <source>cannot link %1 into %2: %3</source>
        <translation>não é possível vincular %1 em %2: %3</translation>
    </message>
    <message>
        <source>no plain name is free in %1 for a link to %2</source>
        <translation>nenhum nome simples está livre em %1 para um link para %2</translation>
    </message>
</context>
<context>
    <name>LauncherPrefix</name>
    <message>
        <source>Preparing the engine for its first use…</source>
        <translation>Preparando o mecanismo para o primeiro uso…</translation>
    </message>
    <message>
        <source>The engine could not be prepared for its first use: %1.
(wine prefix %2)</source>
        <translation>Não foi possível preparar o mecanismo para o primeiro uso: %1.
(prefixo do wine %2)</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>a pasta %1 não pode ser criada</translation>
    </message>
    <message>
        <source>%1 could not be started</source>
        <translation>%1 não pôde ser iniciado</translation>
    </message>
    <message numerus="yes">
        <source>it took more than %n seconds</source>
        <translation>
            <numerusform>levou mais de %n segundo</numerusform>
            <numerusform>levou mais de %n segundos</numerusform>
        </translation>
    </message>
    <message>
        <source>wine ended with code %1 without making it</source>
        <translation>o wine terminou com o código %1 sem criá-lo</translation>
    </message>
</context>
<context>
    <name>Listing</name>
    <message>
        <source>Quovara cannot show the archive
%1
because %2.
Nothing of it is shown.</source>
        <translation>O Quovara não pode exibir o arquivo compactado
%1
porque %2.
Nada dele é exibido.</translation>
    </message>
    <message>
        <source>it cannot create the folder view %1</source>
        <translation>não consegue criar a visualização de pasta %1</translation>
    </message>
    <message>
        <source>the engine&apos;s listing is incomplete</source>
        <translation>a listagem do mecanismo está incompleta</translation>
    </message>
    <message>
        <source>the reading was stopped</source>
        <translation>a leitura foi interrompida</translation>
    </message>
    <message>
        <source>Insert Password</source>
        <translation>Inserir senha</translation>
    </message>
    <message>
        <source>it cannot replace the previous folder view</source>
        <translation>não consegue substituir a visualização de pasta anterior</translation>
    </message>
</context>
<context>
    <name>MessagePrompter</name>
    <message>
        <source>Quovara</source>
        <translation>Quovara</translation>
    </message>
</context>
<context>
    <name>Methods</name>
    <message>
        <source>Store</source>
        <translation>Armazenar</translation>
    </message>
    <message>
        <source>ALZ Fast</source>
        <translation>ALZ Rápido</translation>
    </message>
    <message>
        <source>ALZ Normal</source>
        <translation>ALZ Normal</translation>
    </message>
    <message>
        <source>ALZ Best</source>
        <translation>ALZ Máximo</translation>
    </message>
    <message>
        <source>PPM</source>
        <translation>PPM</translation>
    </message>
    <message>
        <source>LZP</source>
        <translation>LZP</translation>
    </message>
</context>
<context>
    <name>MirrorAliases</name>
    <message>
        <source>Some names of the archive
%1
cannot stand as they are on this system (a name longer than 255 bytes, or a file and a folder of one name): 1 name is shown shortened or numbered. They are extracted under their stored names.</source>
        <translation>Alguns nomes do arquivo compactado
%1
não podem ficar como estão neste sistema (um nome com mais de 255 bytes, ou um arquivo e uma pasta com o mesmo nome): 1 nome é exibido encurtado ou numerado. Na extração, são usados os nomes armazenados.</translation>
    </message>
    <message numerus="yes">
        <source>Some names of the archive
%1
cannot stand as they are on this system (a name longer than 255 bytes, or a file and a folder of one name): %n names are shown shortened or numbered. They are extracted under their stored names.</source>
        <translation>
            <numerusform>Alguns nomes do arquivo compactado
%1
não podem ficar como estão neste sistema (um nome com mais de 255 bytes, ou um arquivo e uma pasta com o mesmo nome): %n nome é exibido encurtado ou numerado. Na extração, são usados os nomes armazenados.</numerusform>
            <numerusform>Alguns nomes do arquivo compactado
%1
não podem ficar como estão neste sistema (um nome com mais de 255 bytes, ou um arquivo e uma pasta com o mesmo nome): %n nomes são exibidos encurtados ou numerados. Na extração, são usados os nomes armazenados.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MirrorWriter</name>
    <message>
        <source>it cannot create the folder view: %1</source>
        <translation>não consegue criar a visualização de pasta: %1</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>&apos;%1&apos; names no locale (for example ru_RU.UTF-8, or ru)</source>
        <translation>&apos;%1&apos; não indica nenhuma localidade (por exemplo ru_RU.UTF-8 ou ru)</translation>
    </message>
    <message>
        <source>Try &apos;quovara --help&apos; for more information.</source>
        <translation>Tente &apos;quovara --help&apos; para mais informações.</translation>
    </message>
    <message>
        <source>option &apos;--extract-here&apos; needs an archive</source>
        <translation>a opção &apos;--extract-here&apos; precisa de um arquivo compactado</translation>
    </message>
    <message>
        <source>print this help and end</source>
        <translation>exibe esta ajuda e termina</translation>
    </message>
    <message>
        <source>print the version of Quovara and of the engine found in the program folder, and end</source>
        <translation>exibe a versão do Quovara e do mecanismo encontrado na pasta do programa e termina</translation>
    </message>
    <message>
        <source>copy the engine files (uharc.exe, Uharc0.4.fns, Uharc0.6.fns, SFX.exe) into the program folder, check that the engine runs, and end; no window opens</source>
        <translation>copia os arquivos do mecanismo (uharc.exe, Uharc0.4.fns, Uharc0.6.fns, SFX.exe) para a pasta do programa, verifica se o mecanismo funciona e termina; nenhuma janela é aberta</translation>
    </message>
    <message>
        <source>extract each archive beside itself, never into or over anything that exists: an archive of one top-level folder or one file as it is, any other into a new folder named after it (&quot;name (2)&quot; when that is taken); a progress window shows each, and the status is 0 only when every archive was extracted</source>
        <translation>extrai cada arquivo compactado ao lado dele mesmo, nunca dentro ou por cima de algo que exista: um arquivo compactado com uma única pasta ou um único arquivo no nível superior, como está; qualquer outro, em uma nova pasta com o nome dele (&quot;nome (2)&quot; se este já existir); uma janela de progresso mostra cada um, e o status é 0 somente quando todos os arquivos compactados forem extraídos</translation>
    </message>
    <message>
        <source>convert each archive into FORMAT (zip, 7z, tar.xz or tar.zst) beside itself, as name.FORMAT (&quot;name (2).FORMAT&quot; when that is taken, never over anything): every file is extracted into a private folder, checked against the archive&apos;s listing (size and CRC-32), written, and the new archive read back; the new archive has no password; a progress window shows each, and the status is 0 only when every archive was converted and checked</source>
        <translation>converte cada arquivo compactado para FORMAT (zip, 7z, tar.xz ou tar.zst) ao lado dele mesmo, como nome.FORMAT (&quot;nome (2).FORMAT&quot; se este já existir, nunca por cima de nada): cada arquivo é extraído para uma pasta privada, conferido com a listagem do arquivo compactado (tamanho e CRC-32) e gravado, e o novo arquivo compactado é relido; o novo arquivo compactado não tem senha; uma janela de progresso mostra cada um, e o status é 0 somente quando todos os arquivos compactados forem convertidos e verificados</translation>
    </message>
    <message>
        <source>run the engine under LOCALE (for example ru_RU.UTF-8, or ru) to show, search and extract the names of archives made on a system of that language; the same as the variable QUOVARA_ARCHIVE_LOCALE</source>
        <translation>executa o mecanismo com a localidade LOCALE (por exemplo ru_RU.UTF-8 ou ru) para exibir, pesquisar e extrair os nomes de arquivos compactados criados em um sistema desse idioma; o mesmo que a variável QUOVARA_ARCHIVE_LOCALE</translation>
    </message>
    <message>
        <source>unrecognized option &apos;%1&apos;</source>
        <translation>opção não reconhecida &apos;%1&apos;</translation>
    </message>
    <message>
        <source>option &apos;%1&apos; doesn&apos;t allow an argument</source>
        <translation>a opção &apos;%1&apos; não permite argumento</translation>
    </message>
    <message>
        <source>option &apos;%1&apos; requires an argument</source>
        <translation>a opção &apos;%1&apos; requer um argumento</translation>
    </message>
    <message>
        <source>option &apos;--convert&apos; needs a format (%1) and an archive</source>
        <translation>a opção &apos;--convert&apos; precisa de um formato (%1) e de um arquivo compactado</translation>
    </message>
    <message>
        <source>unknown format &apos;%1&apos; for &apos;--convert&apos; (%2)</source>
        <translation>formato desconhecido &apos;%1&apos; para &apos;--convert&apos; (%2)</translation>
    </message>
    <message>
        <source>option &apos;--convert&apos; needs an archive after the format</source>
        <translation>a opção &apos;--convert&apos; precisa de um arquivo compactado depois do formato</translation>
    </message>
</context>
<context>
    <name>Places</name>
    <message>
        <source>it cannot be reached (%1)</source>
        <translation>ela não pode ser acessada (%1)</translation>
    </message>
    <message>
        <source>it cannot be created (%1)</source>
        <translation>ela não pode ser criada (%1)</translation>
    </message>
    <message>
        <source>it is a symbolic link</source>
        <translation>ela é um link simbólico</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>ela não é uma pasta</translation>
    </message>
    <message>
        <source>it belongs to another user</source>
        <translation>ela pertence a outro usuário</translation>
    </message>
    <message>
        <source>other users have access to it (mode %1)</source>
        <translation>outros usuários têm acesso a ela (modo %1)</translation>
    </message>
    <message>
        <source>it cannot be created</source>
        <translation>ela não pode ser criada</translation>
    </message>
    <message>
        <source>Quovara cannot use its work folder
%1
because %2.
Nothing is written there, and no job runs until this is put right.</source>
        <translation>O Quovara não pode usar sua pasta de trabalho
%1
porque %2.
Nada é gravado nela, e nenhuma tarefa é executada até que isso seja corrigido.</translation>
    </message>
</context>
<context>
    <name>ProcessControl</name>
    <message>
        <source>Couldn&apos;t terminate process</source>
        <translation>Não foi possível encerrar o processo</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>Progress: %1 MB (Packed  %2 MB) of %3 MB Ratio: %4</source>
        <translation>Progresso: %1 MB (compactado %2 MB) de %3 MB Taxa: %4</translation>
    </message>
    <message>
        <source>Total: %1       Remaining: %2       Elapsed: %3</source>
        <translation>Total: %1       Restante: %2       Decorrido: %3</translation>
    </message>
    <message>
        <source>Completed: %1 % Remaining: %2</source>
        <translation>Concluído: %1 % Restante: %2</translation>
    </message>
</context>
<context>
    <name>Sfx</name>
    <message>
        <source>cannot read %1 (%2)</source>
        <translation>não é possível ler %1 (%2)</translation>
    </message>
    <message>
        <source>cannot copy %1 (%2)</source>
        <translation>não é possível copiar %1 (%2)</translation>
    </message>
    <message>
        <source>cannot write %1 (%2)</source>
        <translation>não é possível gravar %1 (%2)</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the stub file %1 is missing.</source>
        <translation>Não é possível criar o SFX: o arquivo stub %1 não foi encontrado.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the engine file %1 is missing.</source>
        <translation>Não é possível criar o SFX: o arquivo do mecanismo %1 não foi encontrado.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: the archive %1 is missing.</source>
        <translation>Não é possível criar o SFX: o arquivo compactado %1 não foi encontrado.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 cannot be written (%2).</source>
        <translation>Não é possível criar o SFX: %1 não pode ser gravado (%2).</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1.</source>
        <translation>Não é possível criar o SFX: %1.</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 cannot be replaced.</source>
        <translation>Não é possível criar o SFX: %1 não pode ser substituído.</translation>
    </message>
    <message>
        <source>Quovara is creating the SFX</source>
        <translation>O Quovara está criando o SFX</translation>
    </message>
    <message>
        <source>Please Wait ...</source>
        <translation>Aguarde ...</translation>
    </message>
    <message>
        <source>Quovara is ready</source>
        <translation>O Quovara está pronto</translation>
    </message>
    <message>
        <source>Select an action</source>
        <translation>Selecione uma ação</translation>
    </message>
    <message>
        <source>SFX Created</source>
        <translation>SFX criado</translation>
    </message>
</context>
<context>
    <name>StoppedExtract</name>
    <message>
        <source>The extraction was stopped: no file was extracted.</source>
        <translation>A extração foi interrompida: nenhum arquivo foi extraído.</translation>
    </message>
    <message>
        <source>The extraction was stopped: 1 file was extracted whole.</source>
        <translation>A extração foi interrompida: 1 arquivo foi extraído por inteiro.</translation>
    </message>
    <message numerus="yes">
        <source>The extraction was stopped: %n files were extracted whole.</source>
        <translation>
            <numerusform>A extração foi interrompida: %n arquivo foi extraído por inteiro.</numerusform>
            <numerusform>A extração foi interrompida: %n arquivos foram extraídos por inteiro.</numerusform>
        </translation>
    </message>
    <message>
        <source>

&quot;%1&quot; was being written and was incomplete: it has been removed.</source>
        <translation>

&quot;%1&quot; estava sendo gravado e estava incompleto: ele foi removido.</translation>
    </message>
    <message>
        <source>

&quot;%1&quot; was being written and is incomplete, but it could not be removed (%2): please delete it.</source>
        <translation>

&quot;%1&quot; estava sendo gravado e está incompleto, mas não pôde ser removido (%2): exclua-o, por favor.</translation>
    </message>
    <message>
        <source>
It had replaced a file of yours of the same name; the engine had already overwritten that file, so its contents are lost.</source>
        <translation>
Ele havia substituído um arquivo seu com o mesmo nome; o mecanismo já havia sobrescrito esse arquivo, então o conteúdo dele foi perdido.</translation>
    </message>
    <message>
        <source>
If a file of yours had that name, the engine had already overwritten it, so its contents are lost.</source>
        <translation>
Se havia um arquivo seu com esse nome, o mecanismo já o havia sobrescrito, então o conteúdo dele foi perdido.</translation>
    </message>
    <message>
        <source>

The file being written (&quot;%1&quot;) was not found on disk.</source>
        <translation>

O arquivo que estava sendo gravado (&quot;%1&quot;) não foi encontrado no disco.</translation>
    </message>
</context>
<context>
    <name>UnsafeNames</name>
    <message numerus="yes">
        <source>
… and %n more</source>
        <translation>
            <numerusform>
… e mais %n</numerusform>
            <numerusform>
… e mais %n</numerusform>
        </translation>
    </message>
    <message>
        <source>The archive
%1
holds 1 entry whose name would climb out of any folder it is extracted into. It is shown, but will never be extracted:

%2</source>
        <translation>O arquivo compactado
%1
contém 1 entrada cujo nome sairia de qualquer pasta para a qual fosse extraída. Ela é exibida, mas nunca será extraída:

%2</translation>
    </message>
    <message numerus="yes">
        <source>The archive
%1
holds %n entries whose names would climb out of any folder they are extracted into. They are shown, but will never be extracted:

%2</source>
        <translation>
            <numerusform>O arquivo compactado
%1
contém %n entrada cujo nome sairia de qualquer pasta para a qual fosse extraída. Ela é exibida, mas nunca será extraída:

%2</numerusform>
            <numerusform>O arquivo compactado
%1
contém %n entradas cujos nomes sairiam de qualquer pasta para a qual fossem extraídas. Elas são exibidas, mas nunca serão extraídas:

%2</numerusform>
        </translation>
    </message>
    <message>
        <source>1 entry was not extracted: its name would place it outside the destination folder.

%1</source>
        <translation>1 entrada não foi extraída: seu nome a colocaria fora da pasta de destino.

%1</translation>
    </message>
    <message numerus="yes">
        <source>%n entries were not extracted: their names would place them outside the destination folder.

%1</source>
        <translation>
            <numerusform>%n entrada não foi extraída: seu nome a colocaria fora da pasta de destino.

%1</numerusform>
            <numerusform>%n entradas não foram extraídas: seus nomes as colocariam fora da pasta de destino.

%1</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was extracted: every entry of the archive has a name that would place it outside the destination folder.

%1</source>
        <translation>Nada foi extraído: todas as entradas do arquivo compactado têm um nome que as colocaria fora da pasta de destino.

%1</translation>
    </message>
    <message numerus="yes">
        <source>Nothing was extracted: the archive holds %n entries whose names would place them outside the destination folder, too many to leave out one by one.</source>
        <translation>
            <numerusform>Nada foi extraído: o arquivo compactado contém %n entrada cujo nome a colocaria fora da pasta de destino, entradas demais para deixar de fora uma a uma.</numerusform>
            <numerusform>Nada foi extraído: o arquivo compactado contém %n entradas cujos nomes as colocariam fora da pasta de destino, entradas demais para deixar de fora uma a uma.</numerusform>
        </translation>
    </message>
    <message>
        <source>The name of
%1
holds &quot;\&quot; or &quot;:&quot;, which the engine would store as a folder or a drive: extracted, it could land outside the folder it is extracted into. Nothing was run; rename it first.</source>
        <translation>O nome de
%1
contém &quot;\&quot; ou &quot;:&quot;, que o mecanismo armazenaria como uma pasta ou uma unidade: ao ser extraído, ele poderia ir parar fora da pasta para a qual é extraído. Nada foi executado; renomeie-o primeiro.</translation>
    </message>
    <message>
        <source>The entry
%1
is not extracted: its name would place it outside the destination folder.</source>
        <translation>A entrada
%1
não é extraída: seu nome a colocaria fora da pasta de destino.</translation>
    </message>
</context>
<context>
    <name>Workspace</name>
    <message>
        <source>Uharc 0.4 not detected, program will be end</source>
        <translation>Uharc 0.4 não detectado, o programa será encerrado</translation>
    </message>
</context>
<context>
    <name>quovara::ConvertDialog</name>
    <message>
        <source>Save in</source>
        <translation>Salvar em</translation>
    </message>
    <message>
        <source>Convert %1</source>
        <translation>Converter %1</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Formato:</translation>
    </message>
    <message>
        <source>&amp;Save in:</source>
        <translation>&amp;Salvar em:</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Procurar…</translation>
    </message>
    <message>
        <source>New archive: %1</source>
        <translation>Novo arquivo compactado: %1</translation>
    </message>
    <message>
        <source>Every file is checked against the archive&apos;s listing (size and CRC-32) before the new archive is kept. Hidden and system attributes are not kept.</source>
        <translation>Cada arquivo é conferido com a listagem do arquivo compactado (tamanho e CRC-32) antes de o novo arquivo compactado ser mantido. Os atributos de oculto e de sistema não são mantidos.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>A pasta %1 não existe.</translation>
    </message>
    <message>
        <source>Type the whole path of a folder, from &quot;/&quot;.</source>
        <translation>Digite o caminho completo de uma pasta, a partir de &quot;/&quot;.</translation>
    </message>
</context>
<context>
    <name>quovara::ConvertWindow</name>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Converting %1</source>
        <translation>Convertendo %1</translation>
    </message>
    <message>
        <source>Checking the extracted files against the listing…</source>
        <translation>Conferindo os arquivos extraídos com a listagem…</translation>
    </message>
    <message>
        <source>Writing the %1 archive…</source>
        <translation>Gravando o arquivo compactado %1…</translation>
    </message>
    <message>
        <source>Reading the new archive back…</source>
        <translation>Relendo o novo arquivo compactado…</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Parar</translation>
    </message>
</context>
<context>
    <name>quovara::Desktop</name>
    <message>
        <source>%1 cannot be opened: the program that opens files, xdg-open, is not installed.

It comes with the package xdg-utils; install it (for example with &quot;sudo apt install xdg-utils&quot;) and try again.</source>
        <translation>%1 não pode ser aberto: o programa que abre arquivos, xdg-open, não está instalado.

Ele faz parte do pacote xdg-utils; instale-o (por exemplo com &quot;sudo apt install xdg-utils&quot;) e tente novamente.</translation>
    </message>
    <message>
        <source>Memoria o risorse del sistema esaurite. </source>
        <translation>Memória ou recursos do sistema esgotados. </translation>
    </message>
    <message>
        <source>Impossibile trovare il file. </source>
        <translation>Não foi possível encontrar o arquivo. </translation>
    </message>
    <message>
        <source>Impossibile trovare la cartella. </source>
        <translation>Não foi possível encontrar a pasta. </translation>
    </message>
    <message>
        <source>Il formato del file non è valido. </source>
        <translation>O formato do arquivo não é válido. </translation>
    </message>
    <message>
        <source>Il sistema in uso non presenta alcuna associazione per questo tipo di file</source>
        <translation>O sistema não tem nenhuma associação para este tipo de arquivo</translation>
    </message>
    <message>
        <source>Parametri: &apos;%1&apos;</source>
        <translation>Parâmetros: &apos;%1&apos;</translation>
    </message>
</context>
<context>
    <name>quovara::DetailsModel</name>
    <message>
        <source>1 byte</source>
        <translation>1 byte</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n byte</numerusform>
            <numerusform>%n bytes</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 TB</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <translation>%1 PB</translation>
    </message>
    <message>
        <source>%1 EB</source>
        <translation>%1 EB</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <comment>the exact size, its digits grouped</comment>
        <translation>%1 bytes</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 item</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n item</numerusform>
            <numerusform>%n itens</numerusform>
        </translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modificado</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Atributos</translation>
    </message>
    <message>
        <source>CRC-32</source>
        <translation>CRC-32</translation>
    </message>
</context>
<context>
    <name>quovara::FileBrowser</name>
    <message>
        <source>Files</source>
        <translation>Arquivos</translation>
    </message>
</context>
<context>
    <name>quovara::JobNotice</name>
    <message>
        <source>Adding to %1 finished</source>
        <translation>Adição a %1 concluída</translation>
    </message>
    <message>
        <source>Adding to %1 failed</source>
        <translation>Adição a %1 falhou</translation>
    </message>
    <message>
        <source>Adding to %1 stopped</source>
        <translation>Adição a %1 interrompida</translation>
    </message>
    <message>
        <source>Extraction of %1 finished</source>
        <translation>Extração de %1 concluída</translation>
    </message>
    <message>
        <source>Extraction of %1 failed</source>
        <translation>Extração de %1 falhou</translation>
    </message>
    <message>
        <source>Extraction of %1 stopped</source>
        <translation>Extração de %1 interrompida</translation>
    </message>
    <message>
        <source>Test of %1 finished</source>
        <translation>Teste de %1 concluído</translation>
    </message>
    <message>
        <source>Test of %1 failed</source>
        <translation>Teste de %1 falhou</translation>
    </message>
    <message>
        <source>Test of %1 stopped</source>
        <translation>Teste de %1 interrompido</translation>
    </message>
    <message>
        <source>Making the SFX of %1 finished</source>
        <translation>Criação do SFX de %1 concluída</translation>
    </message>
    <message>
        <source>Making the SFX of %1 failed</source>
        <translation>Criação do SFX de %1 falhou</translation>
    </message>
    <message>
        <source>Making the SFX of %1 stopped</source>
        <translation>Criação do SFX de %1 interrompida</translation>
    </message>
</context>
<context>
    <name>quovara::SearchResults</name>
    <message>
        <source>File Name</source>
        <translation>Nome do arquivo</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>Caminho do arquivo</translation>
    </message>
</context>
<context>
    <name>quovara::TaskPaneBar</name>
    <message>
        <source>TaskPaneBar</source>
        <translation>TaskPaneBar</translation>
    </message>
    <message>
        <source>TaskPaneBar Control.
A pane of collapsible task groups with links, details and hosted controls, drawn in the desktop&apos;s colours.</source>
        <translation>Controle TaskPaneBar.
Um painel de grupos de tarefas recolhíveis com links, detalhes e controles hospedados, desenhado com as cores da área de trabalho.</translation>
    </message>
    <message>
        <source>glakre</source>
        <translation>glakre</translation>
    </message>
    <message>
        <source>An Error has ocurred!
Item Key Especified doesn&apos;t match with the existing Items</source>
        <translation>Ocorreu um erro!
A chave de item especificada não corresponde a nenhum item existente</translation>
    </message>
</context>
<context>
    <name>quovara::XP_ProgressBar</name>
    <message>
        <source>Searching..</source>
        <translation>Pesquisando..</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>quovara::frmAggiungi</name>
    <message>
        <source>Archive name</source>
        <translation>Nome do arquivo compactado</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Método</translation>
    </message>
    <message>
        <source>Dictionary size</source>
        <translation>Tamanho do dicionário</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>Adicionar %1</translation>
    </message>
    <message>
        <source>Save Archive To:</source>
        <translation>Salvar arquivo compactado em:</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Procurar</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>Include Subdirectories </source>
        <translation>Incluir subpastas </translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Compressão</translation>
    </message>
    <message>
        <source>Multimedia Compression</source>
        <translation>Compressão multimídia</translation>
    </message>
    <message>
        <source>Dictionary</source>
        <translation>Dicionário</translation>
    </message>
    <message>
        <source>Only These Files: (e.g: *.dll,*.exe)</source>
        <translation>Somente estes arquivos: (ex.: *.dll,*.exe)</translation>
    </message>
    <message>
        <source>Create and Add File</source>
        <translation>Criar e adicionar arquivo</translation>
    </message>
    <message>
        <source>Create and Move File</source>
        <translation>Criar e mover arquivo</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Padrão</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>You have to specify the name of the archive</source>
        <translation>Você precisa informar o nome do arquivo compactado</translation>
    </message>
    <message>
        <source>Salva il file</source>
        <translation>Salvar o arquivo</translation>
    </message>
    <message>
        <source>Uha File (*.uha)|*.uha</source>
        <extracomment>Only the description before the bar is translated; the bar and the pattern stay.</extracomment>
        <translation>Arquivo UHA (*.uha)|*.uha</translation>
    </message>
</context>
<context>
    <name>quovara::frmApri</name>
    <message>
        <source>&quot;%1&quot; cannot be found. Check the spelling of the address and try again.</source>
        <translation>&quot;%1&quot; não foi encontrado. Verifique se o endereço está escrito corretamente e tente novamente.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be found: &quot;%2&quot; is a file, not a folder or an archive.</source>
        <translation>&quot;%1&quot; não foi encontrado: &quot;%2&quot; é um arquivo, não uma pasta nem um arquivo compactado.</translation>
    </message>
    <message>
        <source>The archive &quot;%1&quot; holds no folder &quot;%2&quot;.</source>
        <translation>O arquivo compactado &quot;%1&quot; não contém a pasta &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The archive was converted and every entry checked:
%1</source>
        <translation>O arquivo compactado foi convertido e cada entrada foi verificada:
%1</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Comandos</translation>
    </message>
    <message>
        <source>Archive tasks</source>
        <translation>Tarefas do arquivo compactado</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Search results</source>
        <translation>Resultados da pesquisa</translation>
    </message>
    <message>
        <source>%1 — demonstration engine</source>
        <translation>%1 — mecanismo de demonstração</translation>
    </message>
    <message>
        <source>Open an archive</source>
        <translation>Abrir um arquivo compactado</translation>
    </message>
    <message>
        <source>UHARC archives (*.uha)</source>
        <translation>Arquivos compactados UHARC (*.uha)</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>Quovara is searching</source>
        <translation>O Quovara está pesquisando</translation>
    </message>
    <message>
        <source>Back stops the search</source>
        <translation>Voltar interrompe a pesquisa</translation>
    </message>
    <message>
        <source>%1 is not available in this version yet.</source>
        <translation>%1 ainda não está disponível nesta versão.</translation>
    </message>
    <message>
        <source>Quovara is already running</source>
        <translation>O Quovara já está em execução</translation>
    </message>
    <message>
        <source>No item selected</source>
        <translation>Nenhum item selecionado</translation>
    </message>
    <message>
        <source>No .uha archive selected</source>
        <translation>Nenhum arquivo compactado .uha selecionado</translation>
    </message>
    <message>
        <source>You cannot create a SFX with an archive protected by a password</source>
        <translation>Não é possível criar um SFX a partir de um arquivo compactado protegido por senha</translation>
    </message>
    <message>
        <source>Quovara is ready</source>
        <translation>O Quovara está pronto</translation>
    </message>
    <message>
        <source>Select an action</source>
        <translation>Selecione uma ação</translation>
    </message>
    <message>
        <source>Quovara is skipping</source>
        <translation>O Quovara está pulando</translation>
    </message>
    <message>
        <source>Please wait ...</source>
        <translation>Aguarde ...</translation>
    </message>
    <message>
        <source>Quovara is reading the archive</source>
        <translation>O Quovara está lendo o arquivo compactado</translation>
    </message>
    <message>
        <source>Press Escape to stop</source>
        <translation>Pressione Esc para interromper</translation>
    </message>
    <message>
        <source>Quovara is reading the archive: %1</source>
        <translation>O Quovara está lendo o arquivo compactado: %1</translation>
    </message>
    <message>
        <source>Reading %1 …</source>
        <translation>Lendo %1 …</translation>
    </message>
    <message>
        <source>Reading %1 … %2</source>
        <translation>Lendo %1 … %2</translation>
    </message>
    <message>
        <source>1 entry</source>
        <translation>1 entrada</translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%n entrada</numerusform>
            <numerusform>%n entradas</numerusform>
        </translation>
    </message>
    <message>
        <source>Files Number:</source>
        <translation>Número de arquivos:</translation>
    </message>
    <message>
        <source>Grandezza normale:</source>
        <translation>Tamanho normal:</translation>
    </message>
    <message>
        <source>Grandezza compresso:</source>
        <translation>Tamanho compactado:</translation>
    </message>
    <message>
        <source>Metodo:</source>
        <translation>Método:</translation>
    </message>
    <message>
        <source>Ratio:</source>
        <translation>Taxa:</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Taxa</translation>
    </message>
    <message>
        <source>Search file in archive</source>
        <translation>Pesquisar arquivo no arquivo compactado</translation>
    </message>
    <message>
        <source>Search file in archive (Ctrl+F)</source>
        <translation>Pesquisar arquivo no arquivo compactado (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>Pesquisar (Ctrl+F)</translation>
    </message>
    <message>
        <source>Extract selected item</source>
        <translation>Extrair o item selecionado</translation>
    </message>
    <message>
        <source>Run selected file</source>
        <translation>Executar o arquivo selecionado</translation>
    </message>
    <message>
        <source>Large Icon</source>
        <translation>Ícones grandes</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Relatório</translation>
    </message>
    <message>
        <source>Small Icon</source>
        <translation>Ícones pequenos</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Back (Backspace, Alt+Left)</source>
        <translation>Voltar (Backspace, Alt+Esquerda)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Add files to an archive</source>
        <translation>Adicionar arquivos a um arquivo compactado</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Extrair</translation>
    </message>
    <message>
        <source>Extract an archive</source>
        <translation>Extrair um arquivo compactado</translation>
    </message>
    <message>
        <source>SFX</source>
        <translation>SFX</translation>
    </message>
    <message>
        <source>Make a self-extracting program of the archive</source>
        <translation>Criar um programa autoextraível a partir do arquivo compactado</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verificar</translation>
    </message>
    <message>
        <source>Test an archive</source>
        <translation>Testar um arquivo compactado</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Exibir</translation>
    </message>
    <message>
        <source>Change the view</source>
        <translation>Mudar a visualização</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>Look for a newer version</source>
        <translation>Procurar uma versão mais recente</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>About Quovara. Keys: Ctrl+O open an archive, F5 read it again, Ctrl+Q quit</source>
        <translation>Sobre o Quovara. Teclas: Ctrl+O abre um arquivo compactado, F5 o lê novamente, Ctrl+Q sai</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>File and Folder Operations</source>
        <translation>Operações de arquivo e pasta</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>&amp;Extract…</source>
        <translation>&amp;Extrair…</translation>
    </message>
    <message>
        <source>&amp;Convert…</source>
        <translation>&amp;Converter…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>E&amp;xibir</translation>
    </message>
    <message>
        <source>The engine could not be started.

%1</source>
        <translation>Não foi possível iniciar o mecanismo.

%1</translation>
    </message>
</context>
<context>
    <name>quovara::frmEstrai</name>
    <message>
        <source>Type the folder to extract into, or choose it in the list of folders.</source>
        <translation>Digite a pasta para onde extrair ou escolha-a na lista de pastas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a full path. Type a path that begins with &quot;/&quot;, or with &quot;~/&quot; for a folder in your home folder.</source>
        <translation>&quot;%1&quot; não é um caminho completo. Digite um caminho que comece com &quot;/&quot;, ou com &quot;~/&quot; para uma pasta dentro da sua pasta pessoal.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be created.</source>
        <translation>A pasta &quot;%1&quot; não pode ser criada.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, not a folder.</source>
        <translation>&quot;%1&quot; é um arquivo, não uma pasta.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist. Create it?</source>
        <translation>A pasta &quot;%1&quot; não existe. Deseja criá-la?</translation>
    </message>
    <message>
        <source>Check the folder&apos;s name and that the disk has room.</source>
        <translation>Verifique o nome da pasta e se há espaço no disco.</translation>
    </message>
    <message>
        <source>You may not create folders in &quot;%1&quot;.</source>
        <translation>Você não tem permissão para criar pastas em &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, not a folder. Type the folder to extract into.</source>
        <translation>&quot;%1&quot; é um arquivo, não uma pasta. Digite a pasta para onde extrair.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be shown in the list of folders.</source>
        <translation>A pasta &quot;%1&quot; não pode ser exibida na lista de pastas.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Pastas</translation>
    </message>
    <message>
        <source>The new folder could not be created in %1</source>
        <translation>Não foi possível criar a nova pasta em %1</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Extrair</translation>
    </message>
    <message>
        <source>Extract %1</source>
        <translation>Extrair %1</translation>
    </message>
    <message>
        <source>Extract To:</source>
        <translation>Extrair para:</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Criar nova pasta</translation>
    </message>
    <message>
        <source>Extract files to current dir</source>
        <translation>Extrair arquivos na pasta atual</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Opção</translation>
    </message>
    <message>
        <source>Extract files with full path</source>
        <translation>Extrair arquivos com o caminho completo</translation>
    </message>
    <message>
        <source>Overwrite files</source>
        <translation>Sobrescrever arquivos</translation>
    </message>
    <message>
        <source>Only These Files:  (e.g: *.dll,*.exe)</source>
        <translation>Somente estes arquivos:  (ex.: *.dll,*.exe)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Nova pasta</translation>
    </message>
</context>
<context>
    <name>quovara::frmInfo</name>
    <message>
        <source>Quovara</source>
        <translation>Quovara</translation>
    </message>
    <message>
        <source>UHARC engine</source>
        <translation>Mecanismo UHARC</translation>
    </message>
    <message>
        <source>Web site %1</source>
        <translation>Site %1</translation>
    </message>
    <message>
        <source>E-mail %1</source>
        <translation>E-mail %1</translation>
    </message>
    <message>
        <source>Engine page %1</source>
        <translation>Página do mecanismo %1</translation>
    </message>
    <message>
        <source>Opens the web site in the browser</source>
        <translation>Abre o site no navegador</translation>
    </message>
    <message>
        <source>Writes an e-mail in the mail program</source>
        <translation>Escreve um e-mail no programa de e-mail</translation>
    </message>
    <message>
        <source>Opens the web page in the browser</source>
        <translation>Abre a página web no navegador</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Quovara v 2.0</source>
        <translation>Quovara v 2.0</translation>
    </message>
    <message>
        <source>Quovara v 2.0 UHARC GUI</source>
        <translation>Quovara v 2.0, interface gráfica do UHARC</translation>
    </message>
    <message>
        <source>UHARC 0.6a BETA VERSION High Compression Multimedia Archiver</source>
        <translation>UHARC 0.6a VERSÃO BETA Compactador multimídia de alta compressão</translation>
    </message>
    <message>
        <source>Web Site: </source>
        <translation>Site: </translation>
    </message>
    <message>
        <source>E-mai: </source>
        <translation>E-mail: </translation>
    </message>
    <message>
        <source>IT IS FREE, NOT FOR COMMERCIAL USE</source>
        <translation>É GRATUITO, NÃO PARA USO COMERCIAL</translation>
    </message>
    <message>
        <source>FOR TESTING AND EVALUATION ONLY, NOT FOR COMMERCIAL USE</source>
        <translation>SOMENTE PARA TESTE E AVALIAÇÃO, NÃO PARA USO COMERCIAL</translation>
    </message>
    <message>
        <source>FORZA NAPOLI</source>
        <translation>FORÇA, NAPOLI</translation>
    </message>
    <message>
        <source>Written by the Quovara developers</source>
        <translation>Escrito pelos desenvolvedores do Quovara</translation>
    </message>
    <message>
        <source>UHARC is a separate program by its own author. Quovara does not include it.</source>
        <translation>O UHARC é um programa à parte, de outro autor. O Quovara não o inclui.</translation>
    </message>
    <message>
        <source>For everyone who keeps old archives alive.</source>
        <translation>Para todos que mantêm vivos os arquivos compactados antigos.</translation>
    </message>
</context>
<context>
    <name>quovara::frmProgress</name>
    <message>
        <source>Adding ...</source>
        <translation>Adicionando ...</translation>
    </message>
    <message>
        <source>Extracting ...</source>
        <translation>Extraindo ...</translation>
    </message>
    <message>
        <source>Testing ...</source>
        <translation>Testando ...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>No errors found during test operation</source>
        <translation>Nenhum erro encontrado durante o teste</translation>
    </message>
    <message>
        <source>The engine ended without writing any output, so the job cannot be followed.
Job script: %1</source>
        <translation>O mecanismo terminou sem gravar nenhuma saída, então não é possível acompanhar a tarefa.
Script da tarefa: %1</translation>
    </message>
    <message>
        <source>The job could not be started: %1</source>
        <translation>Não foi possível iniciar a tarefa: %1</translation>
    </message>
    <message>
        <source>The engine ended abnormally (%2).
Archive: %1
The job did not finish; do not rely on its result.</source>
        <translation>O mecanismo terminou de forma anormal (%2).
Arquivo compactado: %1
A tarefa não foi concluída; não confie no resultado.</translation>
    </message>
    <message>
        <source>The engine asks:

%1

Yes: the archive is replaced by a new one that holds only the files of this job; everything the archive holds now is lost (the engine cannot add to an existing archive).
No: the job stops and the archive stays as it is.</source>
        <translation>O mecanismo pergunta:

%1

Sim: o arquivo compactado é substituído por um novo que contém somente os arquivos desta tarefa; tudo o que o arquivo compactado contém agora é perdido (o mecanismo não consegue adicionar a um arquivo compactado existente).
Não: a tarefa é interrompida e o arquivo compactado fica como está.</translation>
    </message>
    <message>
        <source>The archive was left as it was.</source>
        <translation>O arquivo compactado foi deixado como estava.</translation>
    </message>
    <message>
        <source>The engine asks:

%1

Yes answers &quot;y&quot;, No answers &quot;n&quot;.</source>
        <translation>O mecanismo pergunta:

%1

Sim responde &quot;y&quot;, Não responde &quot;n&quot;.</translation>
    </message>
    <message>
        <source>signal %1, %2</source>
        <translation>sinal %1, %2</translation>
    </message>
    <message>
        <source>signal %1</source>
        <translation>sinal %1</translation>
    </message>
    <message>
        <source>exit code %1</source>
        <translation>código de saída %1</translation>
    </message>
    <message>
        <source>exit code %1; it said: %2</source>
        <translation>código de saída %1; ele disse: %2</translation>
    </message>
    <message>
        <source>its output %1 was removed or cut short while it ran</source>
        <translation>sua saída %1 foi removida ou truncada durante a execução</translation>
    </message>
</context>
<context>
    <name>quovara::frmSFX</name>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>&amp;Path To Extract</source>
        <translation>Ca&amp;minho de extração</translation>
    </message>
    <message>
        <source>Path To Extract</source>
        <translation>Caminho de extração</translation>
    </message>
    <message>
        <source>Setup Program</source>
        <translation>Programa de instalação</translation>
    </message>
    <message>
        <source>Run &amp;Before Extraction</source>
        <translation>Executar &amp;antes da extração</translation>
    </message>
    <message>
        <source>Run &amp;After Extraction</source>
        <translation>Executar &amp;depois da extração</translation>
    </message>
    <message>
        <source>Text of SFX</source>
        <translation>Texto do SFX</translation>
    </message>
    <message>
        <source>Tit&amp;le of SFX window</source>
        <translation>Tít&amp;ulo da janela do SFX</translation>
    </message>
    <message>
        <source>Text to display in &amp;SFX window (Max lenght 156) </source>
        <translation>Texto a exibir na janela do &amp;SFX (máx. 156 caracteres) </translation>
    </message>
    <message>
        <source>License Text</source>
        <translation>Texto da licença</translation>
    </message>
    <message>
        <source>Title of L&amp;icense window</source>
        <translation>Título da janela de l&amp;icença</translation>
    </message>
    <message>
        <source>Text to display in License &amp;window</source>
        <translation>Texto a exibir na &amp;janela de licença</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>&amp;Criar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Geral</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Texto</translation>
    </message>
    <message>
        <source>Ad&amp;vanced</source>
        <translation>A&amp;vançado</translation>
    </message>
    <message>
        <source>Cannot create the SFX: %1 is one of the files it is made from.</source>
        <translation>Não é possível criar o SFX: %1 é um dos arquivos a partir dos quais ele é criado.</translation>
    </message>
    <message>
        <source>Make SFX</source>
        <translation>Criar SFX</translation>
    </message>
    <message>
        <source>Save the SFX</source>
        <translation>Salvar o SFX</translation>
    </message>
    <message>
        <source>Application (*.exe)|*.exe</source>
        <extracomment>Only the description before the bar is translated; the bar and the pattern stay.</extracomment>
        <translation>Aplicativo (*.exe)|*.exe</translation>
    </message>
    <message>
        <source>Setup will install PROGRAM NAME HERE into the following folder. To continue, click Install.If you would like to select a different folder, click Browse</source>
        <translation>O instalador instalará NOME DO PROGRAMA AQUI na pasta a seguir. Para continuar, clique em Instalar. Se quiser selecionar outra pasta, clique em Procurar</translation>
    </message>
</context>
<context>
    <name>quovara::ucToolbar</name>
    <message>
        <source>More buttons</source>
        <translation>Mais botões</translation>
    </message>
</context>
</TS>
