// node validate.js VALIDATOR FILE...: prints what the validator finds wrong in .glb files, hints left out.
const fs = require('fs');

async function main([validator, ...files]) {
    const {validateBytes} = require(validator);
    let faults = 0;
    for (const file of files) {
        const {issues} = await validateBytes(new Uint8Array(fs.readFileSync(file)));
        faults += issues.numErrors + issues.numWarnings;
        for (const issue of issues.messages.filter(({severity}) => severity <= 1))
            console.log(`${file}: ${issue.pointer}: ${issue.message}`);
    }
    console.log(`${files.length} files, ${faults} errors and warnings`);
    process.exitCode = faults > 0 ? 1 : 0;
}

main(process.argv.slice(2));
