<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ZEVGlobalUtils</name>
    <message>
        <source>Wildcard</source>
        <translation>Wildcard</translation>
    </message>
    <message>
        <source>Any Characters</source>
        <translation>Any Characters</translation>
    </message>
    <message>
        <source>Any Character</source>
        <translation>Any Character</translation>
    </message>
    <message>
        <source>Any Word</source>
        <translation>Any Word</translation>
    </message>
    <message>
        <source>White Space</source>
        <translation>White Space</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>Digits</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Email Address</source>
        <translation>Email Address</translation>
    </message>
    <message>
        <source>Web Address</source>
        <translation>Web Address</translation>
    </message>
    <message>
        <source>Line Break</source>
        <translation>Line Break</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Any</translation>
    </message>
    <message>
        <source>Char</source>
        <translation>Char</translation>
    </message>
    <message>
        <source>Word</source>
        <translation>Word</translation>
    </message>
    <message>
        <source>Wildcards</source>
        <translation>Wildcards</translation>
    </message>
    <message>
        <source>Contains</source>
        <translation>Contains</translation>
    </message>
    <message>
        <source>Begins With</source>
        <translation>Begins With</translation>
    </message>
    <message>
        <source>Matches Word</source>
        <translation>Matches Word</translation>
    </message>
    <message>
        <source>Ends With</source>
        <translation>Ends With</translation>
    </message>
    <message>
        <source>Regular Expression</source>
        <translation>Regular Expression</translation>
    </message>
    <message>
        <source>Matches Contents</source>
        <translation>Matches Contents</translation>
    </message>
    <message>
        <source>Case Sensitive</source>
        <translation>Case Sensitive</translation>
    </message>
    <message>
        <source>The operation couldn’t be completed. (%1 error %2.)</source>
        <translation>The operation couldn’t be completed. (%1 error %2.)</translation>
    </message>
    <message>
        <source>The expression “%1” is not valid: %2.</source>
        <translation>The expression “%1” is not valid: %2.</translation>
    </message>
    <message>
        <source>(Character %1)</source>
        <translation>(Character %1)</translation>
    </message>
    <message>
        <source>a backslash stands before a character that it does not go with</source>
        <translation>a backslash stands before a character that it does not go with</translation>
    </message>
    <message>
        <source>a parenthesis has no partner</source>
        <translation>a parenthesis has no partner</translation>
    </message>
    <message>
        <source>a bracket is not closed</source>
        <translation>a bracket is not closed</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>it is too large</translation>
    </message>
    <message>
        <source>a repetition in braces is not well formed</source>
        <translation>a repetition in braces is not well formed</translation>
    </message>
    <message>
        <source>it refers to a group that it does not have</source>
        <translation>it refers to a group that it does not have</translation>
    </message>
    <message>
        <source>a look-behind has no limit to its length</source>
        <translation>a look-behind has no limit to its length</translation>
    </message>
    <message>
        <source>a range of characters runs backwards</source>
        <translation>a range of characters runs backwards</translation>
    </message>
    <message>
        <source>it is not well formed</source>
        <translation>it is not well formed</translation>
    </message>
    <message>
        <source>Zero KB</source>
        <translation>Zero KB</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 byte</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 bytes</translation>
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
        <source>Unknown Type (0x%x)</source>
        <translation>Unknown Type (0x%x)</translation>
    </message>
    <message>
        <source>The image “%1” could not be written: %2.</source>
        <translation>The image “%1” could not be written: %2.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>%lu matches</source>
        <translation>%lu matches</translation>
    </message>
    <message>
        <source>%d Results Found</source>
        <translation>%d Results Found</translation>
    </message>
    <message>
        <source>“%1” is not a whole number.</source>
        <translation>“%1” is not a whole number.</translation>
    </message>
    <message>
        <source>The number is too small.</source>
        <translation>The number is too small.</translation>
    </message>
    <message>
        <source>The number is too large.</source>
        <translation>The number is too large.</translation>
    </message>
    <message>
        <source>Insert Pattern</source>
        <translation>Insert Pattern</translation>
    </message>
    <message>
        <source>Saved Patterns</source>
        <translation>Saved Patterns</translation>
    </message>
    <message>
        <source>Remove From Saved</source>
        <translation>Remove From Saved</translation>
    </message>
    <message>
        <source>Save Current</source>
        <translation>Save Current</translation>
    </message>
    <message>
        <source>Show Menu</source>
        <translation>Show Menu</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>No Results</source>
        <translation>No Results</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Find:</translation>
    </message>
    <message>
        <source>Find Menu</source>
        <translation>Find Menu</translation>
    </message>
    <message>
        <source>Saved queries</source>
        <translation>Saved queries</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Find</translation>
    </message>
    <message>
        <source>Replace &amp;with:</source>
        <translation>Replace &amp;with:</translation>
    </message>
    <message>
        <source>Replace Menu</source>
        <translation>Replace Menu</translation>
    </message>
    <message>
        <source>Saved patterns</source>
        <translation>Saved patterns</translation>
    </message>
    <message>
        <source>Replace With</source>
        <translation>Replace With</translation>
    </message>
    <message>
        <source>Matching Type</source>
        <translation>Matching Type</translation>
    </message>
    <message>
        <source>&amp;Case Sensitive</source>
        <translation>&amp;Case Sensitive</translation>
    </message>
    <message>
        <source>Replace A&amp;ll</source>
        <translation>Replace A&amp;ll</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Replace</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Previous</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Next</translation>
    </message>
    <message>
        <source>F&amp;ind</source>
        <translation>F&amp;ind</translation>
    </message>
    <message>
        <source>Saved patterns and options</source>
        <translation>Saved patterns and options</translation>
    </message>
    <message>
        <source>Previous Match</source>
        <translation>Previous Match</translation>
    </message>
    <message>
        <source>Next Match</source>
        <translation>Next Match</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>&amp;Done</translation>
    </message>
    <message>
        <source>Replace and Fi&amp;nd</source>
        <translation>Replace and Fi&amp;nd</translation>
    </message>
    <message>
        <source>Find &amp; Replace</source>
        <translation>Find &amp; Replace</translation>
    </message>
    <message>
        <source>Wrap Around</source>
        <translation>Wrap Around</translation>
    </message>
    <message>
        <source>Saved Queries</source>
        <translation>Saved Queries</translation>
    </message>
    <message>
        <source>Save Query</source>
        <translation>Save Query</translation>
    </message>
    <message>
        <source>The search was too complex: matches are missing.</source>
        <translation>The search was too complex: matches are missing.</translation>
    </message>
    <message>
        <source>Searching… Press Escape to stop.</source>
        <translation>Searching… Press Escape to stop.</translation>
    </message>
    <message>
        <source>The search was stopped: matches may be missing.</source>
        <translation>The search was stopped: matches may be missing.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Replace</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translation>Replace All</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Find…</translation>
    </message>
    <message>
        <source>Find and &amp;Replace…</source>
        <translation>Find and &amp;Replace…</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Find &amp;Next</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>Find &amp;Previous</translation>
    </message>
    <message>
        <source>Use &amp;Selection for Find</source>
        <translation>Use &amp;Selection for Find</translation>
    </message>
    <message>
        <source>the folder “%1” does not exist</source>
        <translation>the folder “%1” does not exist</translation>
    </message>
    <message>
        <source>“%1” is not a folder</source>
        <translation>“%1” is not a folder</translation>
    </message>
    <message>
        <source>you do not have permission to change the folder “%1”</source>
        <translation>you do not have permission to change the folder “%1”</translation>
    </message>
    <message>
        <source>you do not have permission to read “%1”</source>
        <translation>you do not have permission to read “%1”</translation>
    </message>
    <message>
        <source>“%1” may not be removed from where it is</source>
        <translation>“%1” may not be removed from where it is</translation>
    </message>
    <message>
        <source>a folder cannot be put into itself</source>
        <translation>a folder cannot be put into itself</translation>
    </message>
    <message>
        <source>it lies in the folder “%1”, whose place it would take</source>
        <translation>it lies in the folder “%1”, whose place it would take</translation>
    </message>
    <message>
        <source>the volume does not allow the name “%1”</source>
        <translation>the volume does not allow the name “%1”</translation>
    </message>
    <message>
        <source>the volume takes “%1” for the name of another item in the same folder</source>
        <translation>the volume takes “%1” for the name of another item in the same folder</translation>
    </message>
    <message>
        <source>“%1” has more attributes than the volume can keep</source>
        <translation>“%1” has more attributes than the volume can keep</translation>
    </message>
    <message>
        <source>“%1” is a socket or a device</source>
        <translation>“%1” is a socket or a device</translation>
    </message>
    <message>
        <source>“%1” is a link or a pipe, which the volume does not have</source>
        <translation>“%1” is a link or a pipe, which the volume does not have</translation>
    </message>
    <message>
        <source>others could read “%1” on the volume, which keeps no permissions</source>
        <translation>others could read “%1” on the volume, which keeps no permissions</translation>
    </message>
    <message>
        <source>“%1” has changed meanwhile, and was kept</source>
        <translation>“%1” has changed meanwhile, and was kept</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>“%1”: %2</translation>
    </message>
    <message>
        <source>the item does not exist</source>
        <translation>the item does not exist</translation>
    </message>
    <message>
        <source>you do not have permission</source>
        <translation>you do not have permission</translation>
    </message>
    <message>
        <source>an item with this name already exists</source>
        <translation>an item with this name already exists</translation>
    </message>
    <message>
        <source>there is not enough room</source>
        <translation>there is not enough room</translation>
    </message>
    <message>
        <source>the volume can only be read</source>
        <translation>the volume can only be read</translation>
    </message>
    <message>
        <source>it was cancelled</source>
        <translation>it was cancelled</translation>
    </message>
    <message>
        <source>“%1” could not be moved: %2.</source>
        <translation>“%1” could not be moved: %2.</translation>
    </message>
    <message>
        <source>“%1” could not be copied: %2.</source>
        <translation>“%1” could not be copied: %2.</translation>
    </message>
    <message>
        <source>“%1” could not be changed: %2.</source>
        <translation>“%1” could not be changed: %2.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Apply to All</source>
        <translation>Apply to All</translation>
    </message>
    <message>
        <source>Allow Access</source>
        <translation>Allow Access</translation>
    </message>
    <message>
        <source>-SandboxExceptionKey-</source>
        <translation>To work with the files in this folder, access to it is needed. Choose the folder to allow it.</translation>
    </message>
    <message>
        <source>-SandboxSuggestion-</source>
        <translation>If you choose your home folder instead, you will not be asked again for the folders in it.</translation>
    </message>
    <message>
        <source>Keep Both</source>
        <translation>Keep Both</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Skip</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>An item named “%@” already exists in this location.</source>
        <translation>An item named “%@” already exists in this location.</translation>
    </message>
    <message>
        <source>Do you want to replace it with the one you’re moving?</source>
        <translation>Do you want to replace it with the one you’re moving?</translation>
    </message>
    <message>
        <source>Existing item:</source>
        <translation>Existing item:</translation>
    </message>
    <message>
        <source>New item:</source>
        <translation>New item:</translation>
    </message>
    <message>
        <source>Drop Image Here</source>
        <translation>Drop Image Here</translation>
    </message>
    <message>
        <source>Artwork</source>
        <translation>Artwork</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cut</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Reading the image</source>
        <translation>Reading the image</translation>
    </message>
    <message>
        <source>Show more</source>
        <translation>Show more</translation>
    </message>
    <message>
        <source>Last Used</source>
        <translation>Last Used</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choose…</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Choose</translation>
    </message>
    <message>
        <source>Clear Recents</source>
        <translation>Clear Recents</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Default</translation>
    </message>
    <message>
        <source>Choose an Application</source>
        <translation>Choose an Application</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Applications</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Other…</source>
        <translation>Other…</translation>
    </message>
    <message>
        <source>animated</source>
        <translation>animated</translation>
    </message>
    <message>
        <source>no known image format</source>
        <translation>no known image format</translation>
    </message>
    <message>
        <source>no decoder for %1</source>
        <translation>no decoder for %1</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>damaged</translation>
    </message>
    <message>
        <source>too large to be shown</source>
        <translation>too large to be shown</translation>
    </message>
</context>
</TS>
