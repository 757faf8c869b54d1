<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs">
<context>
    <name>Convert</name>
    <message>
        <source>The conversion was stopped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The archive&apos;s listing holds no files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The new archive was written and checked, but %1; nothing was left behind.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>  and %n more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quovara</name>
    <message>
        <source>%1 (size %2, CRC-32 %3; listed: size %4, CRC-32 %5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be read (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The conversion was stopped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 changed after it was checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be created (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This system&apos;s libarchive cannot write %1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be written (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The new archive cannot be read back (%1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The new archive holds %1 entries where %2 were written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The new archive does not read back as written: %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quovara::ConvertDialog</name>
    <message>
        <source>Save in</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quovara::ConvertWindow</name>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quovara::Desktop</name>
    <message>
        <source>%1 cannot be opened: the program that opens files, xdg-open, is not installed.

It comes with the package xdg-utils; install it (for example with &quot;sudo apt install xdg-utils&quot;) and try again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quovara::JobNotice</name>
    <message>
        <source>Adding to %1 finished</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adding to %1 failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adding to %1 stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extraction of %1 finished</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extraction of %1 failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extraction of %1 stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test of %1 finished</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test of %1 failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test of %1 stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Making the SFX of %1 finished</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Making the SFX of %1 failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Making the SFX of %1 stopped</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quovara::StagingCheck</name>
    <message>
        <source>The conversion was stopped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The engine did not extract these entries of the listing:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These entries were extracted with another size or CRC-32 than the listing gives:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The engine extracted files the listing does not have:
%1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quovara::frmApri</name>
    <message>
        <source>&quot;%1&quot; cannot be found. Check the spelling of the address and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be found: &quot;%2&quot; is a file, not a folder or an archive.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The archive &quot;%1&quot; holds no folder &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The archive was converted and every entry checked:
%1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quovara::frmEstrai</name>
    <message>
        <source>Type the folder to extract into, or choose it in the list of folders.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a full path. Type a path that begins with &quot;/&quot;, or with &quot;~/&quot; for a folder in your home folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be created.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, not a folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist. Create it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the folder&apos;s name and that the disk has room.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You may not create folders in &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file, not a folder. Type the folder to extract into.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be shown in the list of folders.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
